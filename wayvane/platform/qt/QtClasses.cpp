#include <wayvane/platform/qt/QtClasses.h>

#include <QtWidgets>

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

namespace wayvane::qt {

using platform::Feature;
using platform::ViewKind;

namespace {

constexpr std::uint32_t bits(std::initializer_list<ViewKind> kinds)
{
  std::uint32_t result = 0;
  for (const ViewKind kind : kinds)
    result |= 1U << static_cast<unsigned>(kind);
  return result;
}

std::uint32_t kindsOf(Family family)
{
  switch (family) {
  case Family::Plain:
    return 0;
  case Family::Control:
    return bits({ViewKind::Control});
  case Family::Button:
    return bits({ViewKind::Control, ViewKind::Button});
  case Family::PopUp:
    return bits({ViewKind::Control, ViewKind::Button, ViewKind::PopUpButton});
  case Family::Segmented:
    return bits({ViewKind::Control, ViewKind::SegmentedControl});
  case Family::Label:
  case Family::LineEdit:
  case Family::SpinBox:
    return bits({ViewKind::Control, ViewKind::TextField});
  case Family::Text:
    return bits({ViewKind::Text, ViewKind::TextView});
  case Family::Box:
    return bits({ViewKind::Box});
  case Family::Table:
    return bits({ViewKind::Control, ViewKind::TableView, ViewKind::ScrollView});
  case Family::ScrollArea:
    return bits({ViewKind::ScrollView});
  }
  return 0;
}

struct FamilyRule {
  const QMetaObject* metaObject;
  Family family;
};

/// The first class that a widget's class is or inherits decides. A header is an item view to Qt, but to the
/// user a row of buttons.
const std::array kFamilyRules{
    FamilyRule{&QHeaderView::staticMetaObject, Family::Control},
    FamilyRule{&QAbstractItemView::staticMetaObject, Family::Table},
    FamilyRule{&QScrollArea::staticMetaObject, Family::ScrollArea},
    FamilyRule{&QTextEdit::staticMetaObject, Family::Text},
    FamilyRule{&QPlainTextEdit::staticMetaObject, Family::Text},
    FamilyRule{&QComboBox::staticMetaObject, Family::PopUp},
    FamilyRule{&QTabBar::staticMetaObject, Family::Segmented},
    FamilyRule{&QLineEdit::staticMetaObject, Family::LineEdit},
    FamilyRule{&QAbstractSpinBox::staticMetaObject, Family::SpinBox},
    FamilyRule{&QLabel::staticMetaObject, Family::Label},
    FamilyRule{&QAbstractButton::staticMetaObject, Family::Button},
    FamilyRule{&QGroupBox::staticMetaObject, Family::Box},
    FamilyRule{&QAbstractSlider::staticMetaObject, Family::Control},
    FamilyRule{&QKeySequenceEdit::staticMetaObject, Family::Control},
};

Family familyOf(const QMetaObject* metaObject)
{
  const auto* rule = std::find_if(kFamilyRules.begin(), kFamilyRules.end(),
                                  [&](const FamilyRule& r) { return metaObject->inherits(r.metaObject); });
  return rule == kFamilyRules.end() ? Family::Plain : rule->family;
}

bool isToolkitName(std::string_view name)
{
  return name.size() > 1 && name[0] == 'Q' && name[1] >= 'A' && name[1] <= 'Z';
}

bool declaresHostProperties(const QMetaObject* metaObject)
{
  for (int i = 0; i < metaObject->propertyCount(); ++i)
    if (std::string_view(metaObject->property(i).name()).starts_with("wv_")) return true;
  return false;
}

/// Every widget can be given a name, an accessible name and a binding.
platform::Features featuresOf(const ClassInfo& info)
{
  platform::Features features{Feature::Identifier, Feature::Bindings, Feature::TitleOrLabel};
  if (info.is(ViewKind::Control)) features.add(Feature::Action);
  if (info.declaresHostProperties) features.add(Feature::HostAnswers);
  return features;
}

ClassInfo describe(const QMetaObject* metaObject)
{
  const std::string_view name = metaObject->className();
  ClassInfo info;
  info.metaObject = metaObject;
  info.superClass = metaObject->superClass();
  info.family = familyOf(metaObject);
  info.kinds = kindsOf(info.family);
  info.isOwn = name.starts_with("wayvane::qt::");
  info.isHost = !info.isOwn && !isToolkitName(name);
  info.declaresHostProperties = declaresHostProperties(metaObject);
  info.isToolButton = metaObject->inherits(&QToolButton::staticMetaObject);
  info.features = featuresOf(info);
  return info;
}

} // namespace

void ClassInfo::findInAncestry(const void* other) const
{
  const QMetaObject* m = metaObject;
  while (m && m != other)
    m = m->superClass();
  askedClass_ = other;
  isAskedClass_ = m != nullptr;
}

namespace {

/// The known classes, and the table that finds them.
class KnownClasses {
public:
  const ClassInfo& add(const QMetaObject* metaObject)
  {
    infos_.push_back(std::make_unique<ClassInfo>(describe(metaObject)));
    if (infos_.size() * 2 > entries_.size()) grow();
    place(infos_.back().get());
    return *infos_.back();
  }

private:
  void place(const ClassInfo* info)
  {
    std::size_t i = detail::classTable.place(info->metaObject);
    while (entries_[i] && entries_[i] != info)
      i = (i + 1) & detail::classTable.mask;
    entries_[i] = info;
  }

  void grow()
  {
    entries_.assign(std::max<std::size_t>(512, entries_.size() * 2), nullptr);
    detail::classTable = {entries_.data(), entries_.size() - 1};
    for (const auto& info : infos_)
      place(info.get());
  }

  std::vector<const ClassInfo*> entries_;
  std::vector<std::unique_ptr<ClassInfo>> infos_;
};

const ClassInfo* const kNoClass = nullptr;

template <class... Widgets>
constexpr std::array<const QMetaObject*, sizeof...(Widgets)> metaObjects()
{
  return {&Widgets::staticMetaObject...};
}

/// The toolkit's classes exist also while no widget of theirs does.
const QMetaObject* toolkitClassNamed(std::string_view name)
{
  static const auto known =
      metaObjects<QWidget, QAbstractButton, QAbstractItemView, QAbstractScrollArea, QAbstractSlider,
                  QAbstractSpinBox, QCalendarWidget, QCheckBox, QColorDialog, QColumnView, QComboBox,
                  QCommandLinkButton, QDateEdit, QDateTimeEdit, QDial, QDialog, QDialogButtonBox, QDockWidget,
                  QDoubleSpinBox, QErrorMessage, QFileDialog, QFocusFrame, QFontComboBox, QFontDialog, QFrame,
                  QGraphicsView, QGroupBox, QHeaderView, QInputDialog, QKeySequenceEdit, QLabel, QLCDNumber,
                  QLineEdit, QListView, QListWidget, QMainWindow, QMdiArea, QMdiSubWindow, QMenu, QMenuBar,
                  QMessageBox, QPlainTextEdit, QProgressBar, QProgressDialog, QPushButton, QRadioButton,
                  QRubberBand, QScrollArea, QScrollBar, QSizeGrip, QSlider, QSpinBox, QSplashScreen,
                  QSplitter, QSplitterHandle, QStackedWidget, QStatusBar, QTabBar, QTableView, QTableWidget,
                  QTabWidget, QTextBrowser, QTextEdit, QTimeEdit, QToolBar, QToolBox, QToolButton, QTreeView,
                  QTreeWidget, QUndoView, QWizard, QWizardPage>();
  const auto* found =
      std::find_if(known.begin(), known.end(), [&](const QMetaObject* m) { return name == m->className(); });
  return found == known.end() ? nullptr : *found;
}

const QMetaObject* livingClassNamed(std::string_view name)
{
  std::vector<const QMetaObject*> seen;
  for (const QWidget* widget : QApplication::allWidgets()) {
    for (const QMetaObject* m = widget->metaObject(); m; m = m->superClass()) {
      if (std::find(seen.begin(), seen.end(), m) != seen.end()) break;
      if (name == m->className()) return m;
      seen.push_back(m);
    }
  }
  return nullptr;
}

} // namespace

detail::ClassTable detail::classTable{&kNoClass, 0};

const ClassInfo& detail::addClass(const QMetaObject* metaObject)
{
  // Never destroyed: handles may be asked while the program ends.
  static auto* const known = new KnownClasses;
  return known->add(metaObject);
}

const QMetaObject* classNamed(std::string_view name)
{
  const QMetaObject* toolkit = toolkitClassNamed(name);
  return toolkit ? toolkit : livingClassNamed(name);
}

} // namespace wayvane::qt
