#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtAlertBox.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace wayvane::qt {

namespace {

/// Of what stands where in the box, the column of the texts.
int textColumn(const QGridLayout& grid, QWidget* label)
{
  int row = 0, column = 0, rows = 0, columns = 0;
  const int index = grid.indexOf(label);
  if (index < 0) return 0;
  grid.getItemPosition(index, &row, &column, &rows, &columns);
  return column;
}

} // namespace

QtAlertBox::QtAlertBox(const platform::AlertSpec& spec)
{
  adopt(*this);
  setAttribute(Qt::WA_QuitOnClose, false);
  setWindowTitle(QGuiApplication::applicationDisplayName());
  // What asks for a text warns of nothing.
  setIcon(spec.field                                                ? QMessageBox::Question
          : spec.style == platform::AlertSpec::Style::Informational ? QMessageBox::Information
                                                                    : QMessageBox::Warning);
  setTextFormat(Qt::PlainText);
  setText(toQString(spec.messageText));
  setInformativeText(toQString(spec.informativeText));
  // The format set above is the first label's alone.
  for (QLabel* label : findChildren<QLabel*>())
    label->setTextFormat(Qt::PlainText);
  addButtons(spec.buttons);
  if (spec.field) addField(*spec.field);
}

void QtAlertBox::addButtons(const std::vector<std::string>& titles)
{
  for (std::size_t i = 0; i < titles.size(); ++i) {
    const bool isLast = i + 1 == titles.size();
    const ButtonRole role = i == 0 ? AcceptRole : isLast ? RejectRole : ActionRole;
    QPushButton* button = addButton(toQString(titles[i]).replace(u'&', QLatin1String("&&")), role);
    if (i == 0) setDefaultButton(button);
    buttons_.push_back(button);
  }
}

void QtAlertBox::addField(const platform::AlertField& field)
{
  field_ = new QLineEdit(toQString(field.value), this);
  field_->setPlaceholderText(toQString(field.placeholder));
  field_->setAccessibleName(toQString(field.placeholder));
  field_->setMinimumWidth(static_cast<int>(field.size.width));
  auto* grid = qobject_cast<QGridLayout*>(layout());
  auto* buttonBox = findChild<QDialogButtonBox*>();
  auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!grid || !buttonBox) {
    if (layout()) layout()->addWidget(field_);
    return;
  }
  // Between the texts and the buttons.
  const int column = textColumn(*grid, label);
  const int columns = grid->columnCount();
  const int row = grid->rowCount();
  grid->removeWidget(buttonBox);
  grid->addWidget(field_, row, column);
  grid->addWidget(buttonBox, row + 1, 0, 1, columns);
}

void QtAlertBox::showEvent(QShowEvent* event)
{
  QMessageBox::showEvent(event);
  if (!field_) return;
  field_->selectAll();
  field_->setFocus(Qt::OtherFocusReason);
}

platform::AlertAnswer QtAlertBox::answer() const
{
  platform::AlertAnswer answer;
  const auto chosen = std::ranges::find(buttons_, clickedButton());
  if (clickedButton() && chosen != buttons_.end())
    answer.button = static_cast<int>(chosen - buttons_.begin());
  if (field_) answer.fieldText = toUtf8(field_->text());
  return answer;
}

void QtAlertBox::closeEvent(QCloseEvent* event)
{
  event->accept();
  QDialog::reject();
}

void QtAlertBox::keyPressEvent(QKeyEvent* event)
{
  if (event->matches(QKeySequence::Cancel)) return QDialog::reject();
  QMessageBox::keyPressEvent(event);
}

} // namespace wayvane::qt
