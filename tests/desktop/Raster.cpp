#include <tests/desktop/Raster.h>
#include <tests/desktop/RasterShapes.h>
#include <wayvane/platform/LayerEvaluator.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

namespace wayvane::sim {

using namespace platform;

namespace {

/// Premultiplied colours.
struct Canvas {
  int width, height;
  std::vector<std::array<double, 4>> pixels;

  Canvas(int w, int h)
    : width(w)
    , height(h)
    , pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h))
  {}

  void paint(const Coverage& coverage, const Rgba& color)
  {
    if (color.alpha <= 0) return;
    const auto [first, last] = pixelsOfRows(coverage.top, coverage.bottom);
    for (std::size_t i = first; i < last; ++i) {
      const double alpha = std::min(1.0, coverage.values[i]) * color.alpha;
      if (alpha > 0) blend(pixels[i], {color.red * alpha, color.green * alpha, color.blue * alpha, alpha});
    }
  }

  void paint(const Canvas& other)
  {
    for (std::size_t i = 0; i < pixels.size(); ++i)
      if (other.pixels[i][3] > 0) blend(pixels[i], other.pixels[i]);
  }

  void multiply(const Coverage& coverage)
  {
    for (std::size_t i = 0; i < pixels.size(); ++i)
      if (coverage.values[i] < 1) multiply(pixels[i], std::max(0.0, coverage.values[i]));
  }

  static void multiply(std::array<double, 4>& pixel, double factor)
  {
    for (double& component : pixel)
      component *= factor;
  }

  [[nodiscard]] std::pair<std::size_t, std::size_t> pixelsOfRows(int top, int bottom) const
  {
    const auto first = [&](int row) {
      return static_cast<std::size_t>(row) * static_cast<std::size_t>(width);
    };
    return {first(top), first(bottom)};
  }

  static void blend(std::array<double, 4>& below, const std::array<double, 4>& above)
  {
    for (std::size_t c = 0; c < 4; ++c)
      below[c] = above[c] + below[c] * (1 - above[3]);
  }
};

/// The coverage smeared over `radius` pixels to each side, along x or y.
Coverage blurred(Coverage source, int radius, bool alongX)
{
  Coverage result(source.width, source.height);
  result.top = std::max(0, source.top - (alongX ? 0 : radius));
  result.bottom = std::min(source.height, source.bottom + (alongX ? 0 : radius));
  for (int y = result.top; y < result.bottom; ++y)
    for (int x = 0; x < source.width; ++x) {
      double sum = 0;
      for (int i = -radius; i <= radius; ++i) {
        const int sx = alongX ? x + i : x, sy = alongX ? y : y + i;
        if (sx >= 0 && sy >= 0 && sx < source.width && sy < source.height) sum += source.at(sx, sy);
      }
      result.at(x, y) = sum / (2 * radius + 1);
    }
  return result;
}

struct Renderer {
  double time, scale;
  Appearance appearance;
  int width, height;
  double rootHeight;

  /// From the layer's own coordinates to pixels, y downward.
  [[nodiscard]] Transform toDevice(const Layer& layer) const
  {
    return transformToRoot(layer, time).then({scale, 0, 0, -scale, 0, rootHeight * scale});
  }

  [[nodiscard]] static std::vector<Polyline> mapped(std::vector<Polyline> lines, const Transform& map)
  {
    for (Polyline& line : lines)
      for (Point& p : line)
        p = map.apply(p);
    return lines;
  }

  [[nodiscard]] Coverage fill(const Layer& layer, const Path& path, FillRule rule, Size moved = {}) const
  {
    const Transform move = Transform::translation(moved.width * scale, -moved.height * scale);
    return filled(mapped(flattened(path), toDevice(layer).then(move)), rule, width, height);
  }

  [[nodiscard]] static Path box(const Layer& layer)
  {
    Path path;
    path.addRoundedRect(layer.bounds(), layer.cornerRadius());
    return path;
  }

  void drawShadow(Canvas& canvas, const Layer& layer, const PresentedValues& values) const
  {
    const Shadow& shadow = *layer.shadow();
    const bool isShape = layer.kind() == LayerKind::Shape;
    if (isShape ? !values.path : layer.backgroundColor().isClear()) return;
    Coverage coverage = isShape ? fill(layer, *values.path, layer.fillRule(), shadow.offset)
                                : fill(layer, box(layer), FillRule::NonZero, shadow.offset);
    const int radius = static_cast<int>(std::lround(shadow.blurRadius * scale / 2));
    for (const bool alongX : {true, false, true, false})
      coverage = blurred(std::move(coverage), radius / 2, alongX);
    canvas.paint(coverage, shadow.color.resolved(appearance));
  }

  void drawShape(Canvas& canvas, const Layer& layer, const PresentedValues& values) const
  {
    if (!values.path) return;
    canvas.paint(fill(layer, *values.path, layer.fillRule()), layer.fillColor().resolved(appearance));
    if (layer.strokeColor().isClear()) return;
    std::vector<Polyline> pieces;
    for (const Polyline& line : flattened(*values.path))
      for (const Polyline& dash : dashed(line, layer.lineDashPattern(), values.lineDashPhase))
        std::ranges::move(stroked(dash, layer.lineWidth()), std::back_inserter(pieces));
    // A mirrored map turns all pieces the other way alike.
    canvas.paint(filled(mapped(std::move(pieces), toDevice(layer)), FillRule::NonZero, width, height),
                 layer.strokeColor().resolved(appearance));
  }

  void drawText(Canvas& canvas, const Layer& layer) const
  {
    Point pen{0, 0};
    for (const AttributedText::Run& run : layer.text().runs) {
      const double advance = run.attachment ? run.attachmentBounds.width : run.font.size / 2;
      Path boxes;
      for (const char byte : run.attachment ? std::string("i") : run.text) {
        if ((static_cast<unsigned char>(byte) & 0xC0) == 0x80) continue;
        if (layer.wrapsText() && pen.x + advance > layer.frame().width)
          pen = {0, pen.y + run.font.size * 1.2};
        const double top = layer.geometryFlipped() ? pen.y : layer.frame().height - pen.y - run.font.size;
        if (byte != ' ') boxes.addRect({pen.x, top, advance * 0.8, run.font.size});
        pen.x += advance;
      }
      canvas.paint(fill(layer, boxes, FillRule::NonZero), run.color.resolved(appearance));
    }
  }

  [[nodiscard]] Coverage stencil(const Layer& mask) const
  {
    Canvas canvas(width, height);
    draw(canvas, mask);
    Coverage coverage(width, height);
    for (std::size_t i = 0; i < canvas.pixels.size(); ++i)
      coverage.values[i] = canvas.pixels[i][3];
    return coverage;
  }

  void drawContents(Canvas& canvas, const Layer& layer, const PresentedValues& values) const
  {
    if (layer.shadow()) drawShadow(canvas, layer, values);
    if (!layer.backgroundColor().isClear())
      canvas.paint(fill(layer, box(layer), FillRule::NonZero), layer.backgroundColor().resolved(appearance));
    if (layer.kind() == LayerKind::Shape) drawShape(canvas, layer, values);
    if (layer.kind() == LayerKind::Text) drawText(canvas, layer);
    if (!layer.masksToBounds()) return drawSublayers(canvas, layer);
    Canvas inside(width, height);
    drawSublayers(inside, layer);
    inside.multiply(fill(layer, box(layer), FillRule::NonZero));
    canvas.paint(inside);
  }

  void drawSublayers(Canvas& canvas, const Layer& layer) const
  {
    for (const LayerHandle& sublayer : layer.sublayers())
      draw(canvas, *sublayer);
  }

  void draw(Canvas& canvas, const Layer& layer) const
  {
    PresentedValues values;
    evaluateLayer(layer, time, values);
    if (layer.isHidden() || values.opacity <= 0) return;
    if (!layer.mask() && values.opacity >= 1) return drawContents(canvas, layer, values);
    Canvas own(width, height);
    drawContents(own, layer, values);
    if (layer.mask()) own.multiply(stencil(*layer.mask()));
    own.multiply(Coverage(width, height, values.opacity));
    canvas.paint(own);
  }
};

std::uint32_t packed(const std::array<double, 4>& pixel)
{
  std::uint32_t result = 0;
  for (const std::size_t c : {3U, 0U, 1U, 2U})
    result = (result << 8) | static_cast<std::uint32_t>(std::lround(std::clamp(pixel[c], 0.0, 1.0) * 255));
  return result;
}

} // namespace

Bitmap renderLayer(const Layer& root, double time, double scale, Appearance appearance, Rgba background)
{
  const int width = static_cast<int>(std::ceil(root.frame().width * scale));
  const int height = static_cast<int>(std::ceil(root.frame().height * scale));
  Canvas canvas(width, height);
  canvas.paint(Coverage(width, height, 1), background);
  const Renderer renderer{time, scale, appearance, width, height, root.frame().height};
  renderer.draw(canvas, root);
  Bitmap bitmap{width, height, {}};
  std::ranges::transform(canvas.pixels, std::back_inserter(bitmap.pixels), packed);
  return bitmap;
}

Rgba pixelAt(const Bitmap& bitmap, Point point, double scale)
{
  const int x = static_cast<int>(std::floor(point.x * scale));
  const int y = bitmap.height - 1 - static_cast<int>(std::floor(point.y * scale));
  if (x < 0 || y < 0 || x >= bitmap.width || y >= bitmap.height) return {};
  const std::uint32_t pixel =
      bitmap.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width) +
                    static_cast<std::size_t>(x)];
  const double alpha = (pixel >> 24) / 255.0;
  if (alpha <= 0) return {};
  const auto component = [&](unsigned shift) { return ((pixel >> shift) & 0xFF) / 255.0 / alpha; };
  return {component(16), component(8), component(0), alpha};
}

} // namespace wayvane::sim
