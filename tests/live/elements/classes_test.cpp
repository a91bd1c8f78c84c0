#include <tests/live/elements/Elements.h>
#include <wayvane/platform/qt/QtApplication.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace wayvane::qt {

/// What a host calls its own class of button.
class TourButton : public QPushButton {
  Q_OBJECT

public:
  using QPushButton::QPushButton;
};

/// A class of which the toolkit never hears.
class QuietButton : public QPushButton {
public:
  using QPushButton::QPushButton;
};

/// As the framework's own widgets are.
class OwnCanvas : public QWidget {
  Q_OBJECT

public:
  using QWidget::QWidget;
};

} // namespace wayvane::qt

class HostCanvas : public QWidget {
  Q_OBJECT

public:
  using QWidget::QWidget;
};

class WVCanvas : public QWidget {
  Q_OBJECT

public:
  using QWidget::QWidget;
};

namespace wayvane::qt {

namespace {

constexpr QRect kPlace(10, 10, 120, 30);

class Classes : public Elements {
protected:
  [[nodiscard]] const QtApplication& application() const { return application_; }

private:
  QtApplication application_;
};

TEST_F(Classes, AClassIsNamedAsTheToolkitNamesIt)
{
  const auto view = viewForWidget(add<HostCanvas>(kPlace));
  EXPECT_EQ(view->className(), "HostCanvas");
  EXPECT_TRUE(view->classNameEquals("HostCanvas"));
  EXPECT_FALSE(view->classNameEquals("HostCanva"));
  EXPECT_FALSE(view->classNameEquals("QWidget"));
}

TEST_F(Classes, AClassTheToolkitDoesNotKnowIsItsBase)
{
  const auto view = viewForWidget(add<QuietButton>(kPlace));
  EXPECT_EQ(view->className(), "QPushButton");
  EXPECT_FALSE(view->isOfHostClass());
}

TEST_F(Classes, TheHostsClassesAreToldFromTheToolkitsAndOurs)
{
  EXPECT_TRUE(viewForWidget(add<HostCanvas>(kPlace))->isOfHostClass());
  EXPECT_FALSE(viewForWidget(add<QWidget>(kPlace))->isOfHostClass());
  EXPECT_TRUE(viewForWidget(add<WVCanvas>(kPlace))->isOfHostClass()) << "whatever its name begins with";
  EXPECT_FALSE(viewForWidget(add<OwnCanvas>(kPlace))->isOfHostClass());
}

TEST_F(Classes, AnElementIsOfItsClassAndThoseAbove)
{
  const auto view = viewForWidget(add<QPushButton>(kPlace));
  for (const auto* name : {"QPushButton", "QAbstractButton", "QWidget"}) {
    const auto found = application().classNamed(name);
    ASSERT_TRUE(found) << name;
    EXPECT_TRUE(view->isOfClass(*found)) << name;
  }
  EXPECT_FALSE(view->isOfClass(*application().classNamed("QCheckBox")));
  EXPECT_FALSE(view->isOfClass({}));
}

TEST_F(Classes, ClassesOfTheToolkitAreKnownWithoutAnElement)
{
  for (const auto* name : {"QTreeView", "QTableWidget", "QToolBar", "QDial", "QComboBox"})
    EXPECT_TRUE(application().classNamed(name)) << name;
  EXPECT_FALSE(application().classNamed("NoSuchClass"));
  EXPECT_FALSE(application().classNamed(""));
}

TEST_F(Classes, AClassOfTheHostsIsKnownWhileItHasAnElement)
{
  EXPECT_FALSE(application().classNamed("HostCanvas"));
  auto* canvas = add<HostCanvas>(kPlace);
  EXPECT_EQ(application().classNamed("HostCanvas"), viewForWidget(canvas)->viewClass());
  delete canvas;
  EXPECT_FALSE(application().classNamed("HostCanvas"));
}

TEST_F(Classes, AClassSaysWhatItsElementsAre)
{
  const auto button = viewForWidget(add<TourButton>(kPlace))->viewClass();
  EXPECT_TRUE(application().classIsKind(button, ViewKind::Button));
  EXPECT_TRUE(application().classIsKind(button, ViewKind::Control));
  EXPECT_FALSE(application().classIsKind(button, ViewKind::TextField));
  EXPECT_TRUE(application().classIsKind(*application().classNamed("QTreeWidget"), ViewKind::TableView));
  EXPECT_FALSE(application().classIsKind(*application().classNamed("QHeaderView"), ViewKind::TableView));
  EXPECT_FALSE(application().classIsKind({}, ViewKind::Control));
}

TEST_F(Classes, SubviewsComeBackToFrontAndWithoutOurs)
{
  auto* back = add<QWidget>(kPlace);
  auto* ours = add<OwnCanvas>(kPlace);
  auto* marked = add<QWidget>(kPlace);
  auto* front = add<QPushButton>(kPlace);
  marked->setProperty("wv_own", true);
  EXPECT_TRUE(isOwnWidget(ours));
  EXPECT_TRUE(isOwnWidget(marked));
  EXPECT_FALSE(isOwnWidget(front));
  EXPECT_THAT(subviewsOf(&content()), ElementsAre(back, front));
  back->raise();
  EXPECT_THAT(subviewsOf(&content()), ElementsAre(front, back));
}

TEST_F(Classes, WindowsAndOtherObjectsAreNoSubviews)
{
  auto* shown = add<QWidget>(kPlace);
  auto* hidden = add<QWidget>(kPlace);
  hidden->hide();
  const auto* dialog = new QWidget(&content(), Qt::Dialog);
  const auto* object = new QObject(&content());
  ASSERT_EQ(content().children().size(), 4);
  EXPECT_THAT(subviewsOf(&content()), ElementsAre(shown, hidden)) << dialog << object;
}

TEST_F(Classes, AVisitEndsWhenTheVisitorSaysSo)
{
  add<QWidget>(kPlace);
  add<QPushButton>(kPlace);
  add<QLineEdit>(kPlace);
  int visits = 0;
  const auto visitor = [&](const platform::View&) { return ++visits < 2; };
  EXPECT_FALSE(viewForWidget(&content())->visitSubviews(visitor));
  EXPECT_EQ(visits, 2);
}

TEST_F(Classes, AnElementKnowsItsWayUpAndItsWindow)
{
  const auto view = viewForWidget(add<QPushButton>(kPlace));
  EXPECT_THAT(view->superview(), Shows(&content()));
  const auto top = view->superview()->superview();
  EXPECT_THAT(top, Shows(&window()));
  EXPECT_THAT(top->superview(), IsNull());
  ASSERT_THAT(view->window(), NotNull());
  EXPECT_EQ(widgetOf(*view->window()), &window());
}

TEST_F(Classes, AnElementIsItselfHoweverItIsAsked)
{
  auto* button = add<QPushButton>(kPlace);
  auto* other = add<QPushButton>(kPlace);
  const auto view = viewForWidget(button);
  const bool wentPast = view->superview()->visitSubviews([&](const platform::View& visited) {
    if (!visited.isSame(*view)) return true;
    EXPECT_TRUE(view->isSame(visited));
    EXPECT_TRUE(isSameView(visited.handle(), view));
    return false;
  });
  EXPECT_FALSE(wentPast);
  EXPECT_FALSE(view->isSame(*viewForWidget(other)));
}

} // namespace

} // namespace wayvane::qt

#include "classes_test.moc"
