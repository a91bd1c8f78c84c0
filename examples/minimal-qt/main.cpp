// The least that a program does to offer guides: one call after its main window exists.
#include <wayvane/qt/Wayvane.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>

int main(int argc, char** argv)
{
  QApplication application(argc, argv);

  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Minimal"));
  window.menuBar()->addMenu(QStringLiteral("&Help"));
  auto* button = new QPushButton(QStringLiteral("Greet"));
  button->setObjectName(QStringLiteral("greetButton")); // a name is the clue that a guide holds on to best
  QObject::connect(button, &QPushButton::clicked, &window,
                   [button] { button->setText(QStringLiteral("Hello")); });
  window.setCentralWidget(button);
  window.show();

  wayvane::qt::install();
  return QApplication::exec();
}
