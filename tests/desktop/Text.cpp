#include "Text.h"

#include <algorithm>
#include <cmath>

namespace wayvane::sim {

namespace {

constexpr double kRounding = 1e-9;

struct Glyph {
  double width = 0;
  double height = 0;
  bool isSpace = false;
  bool endsLine = false;
};

std::vector<Glyph> glyphsOf(const platform::AttributedText& text)
{
  std::vector<Glyph> glyphs;
  for (const auto& run : text.runs) {
    if (run.attachment) {
      glyphs.push_back({run.attachmentBounds.width, run.attachmentBounds.height, false, false});
      continue;
    }
    const double height = std::ceil(run.font.size * 1.2 - kRounding);
    for (const char c : run.text) {
      const bool continuesCharacter = (static_cast<unsigned char>(c) & 0xC0u) == 0x80u;
      if (continuesCharacter) continue;
      glyphs.push_back({c == '\n' ? 0 : run.font.size * 0.5, height, c == ' ', c == '\n'});
    }
  }
  return glyphs;
}

/// Where the line that starts at `start` ends: after a space or a line break, or inside too long a word.
std::size_t endOfLine(const std::vector<Glyph>& glyphs, std::size_t start, double width)
{
  double used = 0;
  std::size_t lastBreak = start;
  for (std::size_t i = start; i < glyphs.size(); ++i) {
    if (glyphs[i].endsLine) return i + 1;
    used += glyphs[i].width;
    if (used > width + kRounding && !glyphs[i].isSpace)
      return lastBreak > start ? lastBreak : std::max(i, start + 1);
    if (glyphs[i].isSpace) lastBreak = i + 1;
  }
  return glyphs.size();
}

double widthOfLine(const std::vector<Glyph>& glyphs, std::size_t start, std::size_t end)
{
  const bool wraps = end < glyphs.size();
  while (wraps && end > start && (glyphs[end - 1].isSpace || glyphs[end - 1].endsLine))
    --end;
  double width = 0;
  for (std::size_t i = start; i < end; ++i)
    width += glyphs[i].width;
  return width;
}

} // namespace

platform::Size TextMeasurer::sizeOfText(const platform::AttributedText& text, double width) const
{
  const std::vector<Glyph> glyphs = glyphsOf(text);
  platform::Size size;
  for (std::size_t start = 0; start < glyphs.size();) {
    const std::size_t end = endOfLine(glyphs, start, width);
    double height = 0;
    for (std::size_t i = start; i < end; ++i)
      height = std::max(height, glyphs[i].height);
    size.height += height;
    size.width = std::max(size.width, widthOfLine(glyphs, start, end));
    start = end;
  }
  if (!glyphs.empty() && glyphs.back().endsLine) size.height += glyphs.back().height;
  return size;
}

} // namespace wayvane::sim
