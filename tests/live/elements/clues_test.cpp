#include <tests/live/elements/Elements.h>

#include <QAction>
#include <QComboBox>
#include <QDataWidgetMapper>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QToolButton>

namespace wayvane::qt {

using platform::Feature;
using platform::HostProperty;

/// A host's class that answers for all its elements.
class RatedButton : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(double wv_guidePadding READ padding CONSTANT)

public:
  using QPushButton::QPushButton;

  [[nodiscard]] double padding() const { return 7.5; }
};

namespace {

constexpr QRect kPlace(10, 10, 120, 30);

class Clues : public Elements {};

// Identifiers

TEST_F(Clues, TheObjectNameIsTheIdentifier)
{
  auto* widget = add<QWidget>(kPlace);
  const auto view = viewForWidget(widget);
  EXPECT_FALSE(view->accessibilityIdentifier());
  EXPECT_FALSE(view->accessibilityIdentifierEquals(SearchText("")));
  widget->setObjectName(QStringLiteral("höhenprofil"));
  EXPECT_THAT(view->accessibilityIdentifier(), Optional(std::string("höhenprofil")));
  EXPECT_THAT(view->identifier(), Optional(std::string("höhenprofil")));
  EXPECT_TRUE(view->accessibilityIdentifierEquals(SearchText("höhenprofil")));
  EXPECT_FALSE(view->accessibilityIdentifierEquals(SearchText("höhenprofile")));
}

TEST_F(Clues, TheToolkitsOwnNamesAreNone)
{
  auto* box = add<QSpinBox>(kPlace);
  const auto* editor = box->findChild<QLineEdit*>();
  ASSERT_EQ(editor->objectName(), QStringLiteral("qt_spinbox_lineedit"));
  const auto view = viewForWidget(const_cast<QLineEdit*>(editor));
  EXPECT_FALSE(view->accessibilityIdentifier());
  EXPECT_FALSE(view->accessibilityIdentifierEquals(SearchText("qt_spinbox_lineedit")));
}

// Labels

TEST_F(Clues, TheAccessibleNameIsTheLabel)
{
  auto* widget = add<QWidget>(kPlace);
  const auto view = viewForWidget(widget);
  EXPECT_FALSE(view->accessibilityLabel());
  widget->setAccessibleName(QStringLiteral("Elevation"));
  EXPECT_THAT(view->accessibilityLabel(), Optional(std::string("Elevation")));
  EXPECT_TRUE(view->isTitled(SearchText("Elevation")));
}

TEST_F(Clues, AFieldIsLabelledByItsBuddy)
{
  auto* label = add<QLabel>(kPlace, QStringLiteral("&Name:"));
  auto* field = add<QLineEdit>(kPlace);
  label->setBuddy(field);
  const auto view = viewForWidget(field);
  EXPECT_THAT(view->accessibilityLabel(), Optional(std::string("Name")));
  EXPECT_TRUE(view->isTitled(SearchText("Name")));
  EXPECT_FALSE(view->isTitled(SearchText("&Name:")));
  field->setAccessibleName(QStringLiteral("Family name"));
  EXPECT_THAT(view->accessibilityLabel(), Optional(std::string("Family name")));
}

/// Whether a walk over the widget and those beside it comes to it, titled so.
bool isFoundByTitle(const QWidget* wanted, std::string_view title)
{
  const SearchText text(title);
  bool found = false;
  viewForWidget(wanted->parentWidget())->visitSubviews([&](const platform::View& view) {
    found =
        found || (widgetOf(view) == wanted && view.mayHave({Feature::TitleOrLabel}) && view.isTitled(text));
    return true;
  });
  return found;
}

TEST_F(Clues, AWalkTakesTheBuddiesOfNow)
{
  auto* first = add<QLineEdit>(kPlace);
  auto* second = add<QLineEdit>(kPlace);
  auto* label = add<QLabel>(kPlace, QStringLiteral("&Name:"));
  label->setBuddy(first);
  EXPECT_TRUE(isFoundByTitle(first, "Name"));
  label->setBuddy(second);
  EXPECT_FALSE(isFoundByTitle(first, "Name"));
  EXPECT_TRUE(isFoundByTitle(second, "Name"));
  label->setText(QStringLiteral("Place"));
  EXPECT_TRUE(isFoundByTitle(second, "Place"));
}

TEST_F(Clues, OfTwoLabelsTheFirstCountsAlsoAmongMany)
{
  std::vector<QLineEdit*> fields;
  for (int i = 0; i < 60; ++i) {
    auto* label = add<QLabel>(kPlace, QStringLiteral("Place %1:").arg(i));
    fields.push_back(add<QLineEdit>(kPlace));
    label->setBuddy(fields.back());
  }
  add<QLabel>(kPlace, QStringLiteral("Again"))->setBuddy(fields[41]);
  EXPECT_TRUE(isFoundByTitle(fields[41], "Place 41"));
  EXPECT_FALSE(isFoundByTitle(fields[41], "Again"));
  EXPECT_THAT(viewForWidget(fields[59])->accessibilityLabel(), Optional(std::string("Place 59")));
}

TEST_F(Clues, SpinAndComboBoxesAreLabelledByTheirBuddiesToo)
{
  auto* length = add<QLabel>(kPlace, QStringLiteral("Length: "));
  auto* grade = add<QLabel>(kPlace, QStringLiteral("Grade\uFF1A"));
  auto* spin = add<QSpinBox>(kPlace);
  auto* combo = add<QComboBox>(kPlace);
  length->setBuddy(spin);
  grade->setBuddy(combo);
  EXPECT_THAT(viewForWidget(spin)->accessibilityLabel(), Optional(std::string("Length")));
  EXPECT_THAT(viewForWidget(combo)->accessibilityLabel(), Optional(std::string("Grade")));
}

TEST_F(Clues, ABuddyThatComesLaterOrGoesIsNoticed)
{
  auto* field = add<QLineEdit>(kPlace);
  const auto view = viewForWidget(field);
  EXPECT_FALSE(view->accessibilityLabel());
  auto* label = add<QLabel>(kPlace, QStringLiteral("Name"));
  label->setBuddy(field);
  EXPECT_THAT(view->accessibilityLabel(), Optional(std::string("Name")));
  delete label;
  EXPECT_FALSE(view->accessibilityLabel());
}

TEST_F(Clues, AnImageOnlyButtonIsLabelledByTheTextItHides)
{
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  auto* button = add<QToolButton>(kPlace);
  button->setText(QStringLiteral("&Share"));
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  EXPECT_FALSE(viewForWidget(button)->accessibilityLabel());
  button->setIcon(QIcon(pixmap));
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  EXPECT_THAT(viewForWidget(button)->accessibilityLabel(), Optional(std::string("Share")));
}

// Tool tips

TEST_F(Clues, AToolTipIsReadWithoutMarkup)
{
  auto* widget = add<QWidget>(kPlace);
  EXPECT_FALSE(viewForWidget(widget)->toolTip());
  widget->setToolTip(QStringLiteral("<b>Drag</b> to zoom"));
  EXPECT_THAT(viewForWidget(widget)->toolTip(), Optional(std::string("Drag to zoom")));
}

TEST_F(Clues, AToolTipThatAnActionMadeOfItsTextIsNone)
{
  QAction action(QStringLiteral("&Open\u2026"));
  auto* button = add<QToolButton>(kPlace);
  button->setDefaultAction(&action);
  ASSERT_FALSE(button->toolTip().isEmpty());
  EXPECT_FALSE(viewForWidget(button)->toolTip());
  action.setToolTip(QStringLiteral("Open a tour (Ctrl+O)"));
  EXPECT_THAT(viewForWidget(button)->toolTip(), Optional(std::string("Open a tour (Ctrl+O)")));
  button->setToolTip(QStringLiteral("Of the button alone"));
  EXPECT_THAT(viewForWidget(button)->toolTip(), Optional(std::string("Of the button alone")));
}

// Bindings

TEST_F(Clues, AHostDeclaresOneBinding)
{
  auto* field = add<QLineEdit>(kPlace);
  const auto view = viewForWidget(field);
  EXPECT_FALSE(view->observedKeyPathForBinding("value"));
  field->setProperty("wv_binding", QStringLiteral("selection.name"));
  EXPECT_THAT(view->observedKeyPathForBinding("value"), Optional(std::string("selection.name")));
  EXPECT_FALSE(view->observedKeyPathForBinding("enabled"));
  field->setProperty("wv_binding", QStringLiteral("enabled:selection.canEdit"));
  EXPECT_THAT(view->observedKeyPathForBinding("enabled"), Optional(std::string("selection.canEdit")));
  EXPECT_FALSE(view->observedKeyPathForBinding("value"));
}

TEST_F(Clues, AHostDeclaresSeveralBindings)
{
  auto* field = add<QLineEdit>(kPlace);
  field->setProperty("wv_bindings", QVariantMap{{"value", "tour.name"}, {"hidden", "tour.isDraft"}});
  const auto view = viewForWidget(field);
  EXPECT_THAT(view->observedKeyPathForBinding("value"), Optional(std::string("tour.name")));
  EXPECT_THAT(view->observedKeyPathForBinding("hidden"), Optional(std::string("tour.isDraft")));
  EXPECT_FALSE(view->observedKeyPathForBinding("title"));
}

class MappedClues : public Clues {
protected:
  void SetUp() override
  {
    Clues::SetUp();
    model_.setHorizontalHeaderLabels({"Name", "Length"});
    model_.appendRow({new QStandardItem("Alps"), new QStandardItem("12")});
  }

  [[nodiscard]] QStandardItemModel& model() { return model_; }

private:
  QStandardItemModel model_{0, 2};
};

TEST_F(MappedClues, AMapperBindsAWidgetToTheHeaderOfItsSection)
{
  auto* name = add<QLineEdit>(kPlace);
  auto* length = add<QLineEdit>(kPlace);
  auto* other = add<QLineEdit>(kPlace);
  auto* mapper = new QDataWidgetMapper(&content());
  mapper->setModel(&model());
  mapper->addMapping(name, 0);
  mapper->addMapping(length, 1, "text");
  EXPECT_THAT(viewForWidget(name)->observedKeyPathForBinding("value"), Optional(std::string("Name")));
  EXPECT_THAT(viewForWidget(length)->observedKeyPathForBinding("value"), Optional(std::string("Length")));
  EXPECT_FALSE(viewForWidget(name)->observedKeyPathForBinding("text"));
  EXPECT_FALSE(viewForWidget(other)->observedKeyPathForBinding("value"));
}

TEST_F(MappedClues, AMapperOfAnotherPropertyBindsThat)
{
  auto* button = add<QPushButton>(kPlace);
  auto* mapper = new QDataWidgetMapper(&window());
  mapper->setModel(&model());
  mapper->addMapping(button, 1, "enabled");
  EXPECT_THAT(viewForWidget(button)->observedKeyPathForBinding("enabled"), Optional(std::string("Length")));
  EXPECT_FALSE(viewForWidget(button)->observedKeyPathForBinding("value"));
}

TEST_F(MappedClues, AMapperThatEndsBindsNothing)
{
  auto* name = add<QLineEdit>(kPlace);
  auto* mapper = new QDataWidgetMapper(&window());
  mapper->setModel(&model());
  mapper->addMapping(name, 0);
  ASSERT_TRUE(viewForWidget(name)->observedKeyPathForBinding("value"));
  delete mapper;
  EXPECT_FALSE(viewForWidget(name)->observedKeyPathForBinding("value"));
}

// What hosts say

TEST_F(Clues, AHostAnswersForItsElementsByDynamicProperties)
{
  auto* widget = add<QWidget>(kPlace);
  const auto view = viewForWidget(widget);
  EXPECT_FALSE(view->hostString(HostProperty::GuideIdentifier));
  EXPECT_FALSE(view->hostNumber(HostProperty::GuidePadding));
  widget->setProperty("somebodyElses", 3);
  EXPECT_FALSE(view->hostNumber(HostProperty::GuidePadding));
  widget->setProperty("wv_guidePadding", 4);
  widget->setProperty("wv_guideCornerRadius", QStringLiteral("2.5"));
  widget->setProperty("wv_guideIdentifier", QStringLiteral("profile"));
  widget->setProperty("wv_displayString", QStringLiteral("Profile"));
  widget->setProperty("wv_localizedTitle", QStringLiteral("Profil"));
  EXPECT_THAT(view->hostNumber(HostProperty::GuidePadding), Optional(4.0));
  EXPECT_THAT(view->hostNumber(HostProperty::GuideCornerRadius), Optional(2.5));
  EXPECT_THAT(view->hostString(HostProperty::GuideIdentifier), Optional(std::string("profile")));
  EXPECT_THAT(view->hostString(HostProperty::DisplayString), Optional(std::string("Profile")));
  EXPECT_THAT(view->hostString(HostProperty::LocalizedTitle), Optional(std::string("Profil")));
}

TEST_F(Clues, AnswersThatAreNoNumbersAreNone)
{
  auto* widget = add<QWidget>(kPlace);
  widget->setProperty("wv_guidePadding", QStringLiteral("wide"));
  EXPECT_FALSE(viewForWidget(widget)->hostNumber(HostProperty::GuidePadding));
}

TEST_F(Clues, AClassAnswersForAllItsElements)
{
  const auto view = viewForWidget(add<RatedButton>(kPlace));
  EXPECT_THAT(view->hostNumber(HostProperty::GuidePadding), Optional(7.5));
  EXPECT_FALSE(view->hostNumber(HostProperty::GuideCornerRadius));
}

} // namespace

} // namespace wayvane::qt

#include "clues_test.moc"
