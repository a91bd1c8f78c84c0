#include <tests/desktop/RasterShapes.h>

#include <array>
#include <cmath>
#include <numeric>

namespace wayvane::sim {

using namespace platform;

namespace {

constexpr int kSubRows = 4;
constexpr int kCurvePieces = 16;

Point onCurve(const std::array<Point, 3>& p, Point start, double t)
{
  const double u = 1 - t, a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
  return {a * start.x + b * p[0].x + c * p[1].x + d * p[2].x,
          a * start.y + b * p[0].y + c * p[1].y + d * p[2].y};
}

struct Crossing {
  double x;
  int direction;
};

std::vector<Crossing> crossingsAt(const std::vector<Polyline>& shapes, double y)
{
  std::vector<Crossing> crossings;
  for (const Polyline& shape : shapes)
    for (std::size_t i = 0; i < shape.size(); ++i) {
      const Point a = shape[i], b = shape[(i + 1) % shape.size()];
      if ((a.y <= y) == (b.y <= y)) continue;
      crossings.push_back({a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y), a.y < b.y ? 1 : -1});
    }
  std::ranges::sort(crossings, {}, &Crossing::x);
  return crossings;
}

/// Pieces that overlap must all turn the same way to be filled as one.
void addPiece(std::vector<Polyline>& pieces, Polyline piece)
{
  double area = 0;
  for (std::size_t i = 0; i < piece.size(); ++i) {
    const Point a = piece[i], b = piece[(i + 1) % piece.size()];
    area += a.x * b.y - b.x * a.y;
  }
  if (area < 0) std::ranges::reverse(piece);
  pieces.push_back(std::move(piece));
}

void addJoin(std::vector<Polyline>& pieces, Point p, Point n1, Point n2, double half)
{
  const double cosine = n1.x * n2.x + n1.y * n2.y, turn = n1.x * n2.y - n1.y * n2.x;
  const double side = turn > 0 ? -half : half;
  Polyline join{p, {p.x + n1.x * side, p.y + n1.y * side}};
  // The tip is sqrt(2 / (1 + cosine)) half widths away, and cut off beyond two.
  if (1 + cosine >= 0.5) {
    const double reach = side / (1 + cosine);
    join.push_back({p.x + (n1.x + n2.x) * reach, p.y + (n1.y + n2.y) * reach});
  }
  join.push_back({p.x + n2.x * side, p.y + n2.y * side});
  addPiece(pieces, std::move(join));
}

} // namespace

std::vector<Polyline> flattened(const Path& path)
{
  std::vector<Polyline> lines;
  for (const Path::Element& element : path.elements()) {
    if (element.verb == Path::Verb::Move || lines.empty()) lines.push_back({element.points[0]});
    Polyline& line = lines.back();
    if (element.verb == Path::Verb::Line) line.push_back(element.points[0]);
    if (element.verb == Path::Verb::Close) line.push_back(line.front());
    if (element.verb != Path::Verb::Cubic) continue;
    const Point start = line.back();
    for (int i = 1; i <= kCurvePieces; ++i)
      line.push_back(onCurve(element.points, start, static_cast<double>(i) / kCurvePieces));
  }
  return lines;
}

Coverage filled(const std::vector<Polyline>& shapes, FillRule rule, int width, int height)
{
  Coverage coverage(width, height);
  double top = height, bottom = 0;
  for (const Polyline& shape : shapes)
    for (const Point& p : shape) {
      top = std::min(top, p.y);
      bottom = std::max(bottom, p.y);
    }
  coverage.top = static_cast<int>(std::clamp<double>(std::floor(top), 0, height));
  coverage.bottom = static_cast<int>(std::clamp<double>(std::ceil(bottom), coverage.top, height));
  for (int y = coverage.top; y < coverage.bottom; ++y)
    for (int sub = 0; sub < kSubRows; ++sub) {
      const auto crossings = crossingsAt(shapes, y + (sub + 0.5) / kSubRows);
      int winding = 0;
      for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].direction;
        const bool inside = rule == FillRule::EvenOdd ? i % 2 == 0 : winding != 0;
        if (inside) coverage.addSpan(y, crossings[i].x, crossings[i + 1].x, 1.0 / kSubRows);
      }
    }
  return coverage;
}

std::vector<Polyline> dashed(const Polyline& line, const std::vector<double>& pattern, double phase)
{
  const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
  if (!(period > 0)) return {line};
  std::vector<Polyline> dashes;
  std::size_t index = 0;
  double rest = pattern[0] - std::fmod(std::fmod(phase, period) + period, period);
  const auto next = [&] { rest += pattern[++index % pattern.size()]; };
  while (rest <= 0)
    next();
  dashes.push_back({line.front()});
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const Point a = line[i], b = line[i + 1];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    double done = 0;
    for (; length - done > rest; next()) {
      done += rest;
      rest = 0;
      const Point cut{a.x + (b.x - a.x) * done / length, a.y + (b.y - a.y) * done / length};
      if (index % 2 == 0)
        dashes.back().push_back(cut);
      else
        dashes.push_back({cut});
    }
    rest -= length - done;
    if (index % 2 == 0) dashes.back().push_back(b);
  }
  return dashes;
}

std::vector<Polyline> stroked(Polyline line, double width)
{
  const auto last = std::unique(line.begin(), line.end());
  line.erase(last, line.end());
  std::vector<Polyline> pieces;
  std::vector<Point> normals;
  const double half = width / 2;
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const Point a = line[i], b = line[i + 1];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    const Point n{-(b.y - a.y) / length, (b.x - a.x) / length};
    addPiece(pieces, {{a.x + n.x * half, a.y + n.y * half},
                      {b.x + n.x * half, b.y + n.y * half},
                      {b.x - n.x * half, b.y - n.y * half},
                      {a.x - n.x * half, a.y - n.y * half}});
    if (!normals.empty()) addJoin(pieces, a, normals.back(), n, half);
    normals.push_back(n);
  }
  if (line.size() > 2 && line.front() == line.back())
    addJoin(pieces, line.front(), normals.back(), normals.front(), half);
  return pieces;
}

} // namespace wayvane::sim
