#include <QApplication>
#include <QStyleFactory>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
  testing::InitGoogleMock(&argc, argv);
  QApplication app(argc, argv);
  QCoreApplication::setOrganizationDomain(QStringLiteral("trailbook.example"));
  QCoreApplication::setApplicationName(QStringLiteral("Trailbook"));
  QCoreApplication::setApplicationVersion(QStringLiteral("1.0"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
