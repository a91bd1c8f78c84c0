#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBuddies.h>
#include <wayvane/platform/qt/QtObjectWatch.h>

#include <QLabel>
#include <QPointer>
#include <QTextDocument>

#include <vector>

namespace wayvane::qt {

namespace {

/// The labels of the widget asked about last: a search asks about one field after the other.
struct SiblingLabels {
  const QWidget* parent = nullptr;
  std::uint64_t generation = 0;
  std::vector<QPointer<const QLabel>> labels;
};

const std::vector<QPointer<const QLabel>>& labelsIn(const QWidget& parent)
{
  static SiblingLabels last;
  const std::uint64_t generation = childGeneration();
  if (last.parent != &parent || last.generation != generation || generation == 0) {
    last = {&parent, generation, {}};
    for (const QObject* child : parent.children())
      if (const auto* label = qobject_cast<const QLabel*>(child)) last.labels.emplace_back(label);
  }
  return last.labels;
}

QString withoutColon(QString text)
{
  text = text.trimmed();
  if (text.endsWith(u':') || text.endsWith(u'\uFF1A')) text.chop(1);
  return text.trimmed();
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
  const QWidget* parent = widget.parentWidget();
  if (!parent) return {};
  for (const auto& label : labelsIn(*parent))
    if (label && label->buddy() == &widget) return withoutColon(shownText(*label));
  return {};
}

} // namespace wayvane::qt
