#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBuddies.h>
#include <wayvane/platform/qt/QtClasses.h>

#include <QLabel>
#include <QPointer>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <tuple>
#include <vector>

namespace wayvane::qt {

std::uint64_t detail::buddyMemory = 0;

namespace {

struct Buddy {
  const QWidget* widget;
  std::size_t order;
  QPointer<const QLabel> label;

  [[nodiscard]] auto key() const { return std::tie(widget, order); }
};

/// So few are faster gone through than sorted.
constexpr std::size_t kMostInOrder = 32;

/// Those that the children of one widget name; sorted when they are many.
struct Buddies {
  const QWidget* parent = nullptr;
  std::uint64_t memory = 0;
  std::vector<Buddy> list;
};

void collect(const QWidget& parent, std::vector<Buddy>& list)
{
  list.clear();
  for (const QObject* child : parent.children()) {
    if (!child->isWidgetType() || classInfo(child->metaObject()).family != Family::Label) continue;
    const auto* label = static_cast<const QLabel*>(child);
    if (const QWidget* buddy = label->buddy()) list.push_back({buddy, list.size(), label});
  }
  if (list.size() <= kMostInOrder) return;
  std::sort(list.begin(), list.end(), [](const Buddy& a, const Buddy& b) { return a.key() < b.key(); });
}

const std::vector<Buddy>& buddiesIn(const QWidget& parent)
{
  // A walk goes through a widget's children and theirs in turn.
  static std::array<Buddies, 16> known;
  Buddies& buddies = known[(reinterpret_cast<std::uintptr_t>(&parent) >> 5U) % known.size()];
  if (buddies.parent != &parent || buddies.memory != detail::buddyMemory) {
    collect(parent, buddies.list);
    buddies.parent = &parent;
    buddies.memory = detail::buddyMemory;
  }
  return buddies.list;
}

/// The first of them; null when there is none.
const QLabel* labelOf(const QWidget& widget)
{
  const QWidget* parent = widget.parentWidget();
  if (!parent) return nullptr;
  const std::vector<Buddy>& buddies = buddiesIn(*parent);
  if (buddies.size() <= kMostInOrder) {
    for (const Buddy& buddy : buddies)
      if (buddy.widget == &widget) return buddy.label;
    return nullptr;
  }
  const auto found =
      std::lower_bound(buddies.begin(), buddies.end(), &widget,
                       [](const Buddy& buddy, const QWidget* wanted) { return buddy.widget < wanted; });
  return found != buddies.end() && found->widget == &widget ? found->label : nullptr;
}

} // namespace

QString shownText(const QLabel& label)
{
  const QString text = label.text();
  if (label.buddy() && label.textFormat() != Qt::RichText) return withoutMnemonic(text);
  switch (label.textFormat()) {
  case Qt::PlainText:
    return text;
  case Qt::MarkdownText: {
    QTextDocument document;
    document.setMarkdown(text);
    return document.toPlainText();
  }
  default:
    return withoutMarkup(text);
  }
}

QString buddyText(const QWidget& widget)
{
  const QLabel* label = labelOf(widget);
  return label ? withoutColon(shownText(*label)).toString() : QString();
}

bool buddyTextEquals(const QWidget& widget, const platform::SearchText& text)
{
  const QLabel* label = labelOf(widget);
  if (!label) return false;
  if (label->textFormat() == Qt::RichText) return equals(withoutColon(shownText(*label)), text);
  return captionEqualsWithoutColon(label->text(), text);
}

} // namespace wayvane::qt
