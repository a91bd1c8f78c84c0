#pragma once

#include <wayvane/platform/Color.h>
#include <wayvane/platform/Font.h>
#include <wayvane/platform/Image.h>

#include <string>
#include <vector>

namespace wayvane::platform {

/// Text in runs of one style each; a run may be an inline picture instead. A plain value; the text is
/// UTF-8 and is always shown literally: markup is never interpreted.
struct AttributedText {
  struct Run {
    std::string text;
    Font font;
    Color color = Color::label();
    /// When set, the run is this picture and `text` is U+FFFC.
    ImageHandle attachment;
    /// Relative to the baseline, y upward.
    Rect attachmentBounds;
    friend bool operator==(const Run&, const Run&) = default;
  };

  std::vector<Run> runs;

  /// What a screen reader would read: the runs' texts joined, pictures left out.
  [[nodiscard]] std::string plainText() const
  {
    std::string result;
    for (const Run& run : runs)
      if (!run.attachment) result += run.text;
    return result;
  }

  [[nodiscard]] bool isEmpty() const
  {
    for (const Run& run : runs)
      if (!run.text.empty() || run.attachment) return false;
    return true;
  }

  friend bool operator==(const AttributedText&, const AttributedText&) = default;
};

/// Measures text with the toolkit's own fonts, so that what is measured is what is drawn. Main thread.
class TextMeasurer {
public:
  virtual ~TextMeasurer() = default;
  /// The size that `text` takes when its lines are broken between words (and inside a word that is longer
  /// than a line) to fit `width`; without wrapping when `width` is infinite. Not rounded. The zero size
  /// for empty text.
  [[nodiscard]] virtual Size sizeOfText(const AttributedText& text, double width) const = 0;
};

} // namespace wayvane::platform
