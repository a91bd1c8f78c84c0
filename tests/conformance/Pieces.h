#pragma once

#include <wayvane/platform/ViewRoles.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace wayvane::conformance {

using Text = std::optional<std::string>;

/// What every element of a host has. Each toolkit places it so that it covers `frame`, which is in window
/// coordinates: points, y up, origin at the bottom left of the window.
struct Look {
  platform::Rect frame{10, 10, 100, 30};
  /// The element it goes into; the window's content when null.
  platform::ViewHandle inside{};
  Text identifier{};
  Text accessibilityLabel{};
  Text toolTip{};
  /// Observed key path of the binding "value".
  Text valueBinding{};
  std::map<platform::HostProperty, std::string> hostStrings{};
  std::map<platform::HostProperty, double> hostNumbers{};
};

struct ButtonPiece {
  std::string title{};
  Text action{};
};

struct FieldPiece {
  std::string value{};
  Text placeholder{};
};

struct PopUpPiece {
  std::vector<std::string> items{};
  /// -1 for none.
  int selected = 0;
};

struct SegmentsPiece {
  std::vector<std::string> labels{};
  int selected = 0;
};

struct TextViewPiece {
  std::string value{};
  bool editable = true;
};

enum class Cells : bool { Drawn, Views };

struct TablePiece {
  Cells cells = Cells::Views;
  std::vector<std::string> columnIdentifiers{};
  /// By row and column.
  std::vector<std::vector<std::string>> texts{};
  /// By row; a row without one has no model object.
  std::vector<std::map<std::string, std::string>> models{};
};

struct ToolbarPiece {
  Text identifier{};
  Text label{};
  Text toolTip{};
};

/// Titles from the menu bar downwards, for instance {"File", "Export", "As Text…"}.
using MenuPath = std::vector<std::string>;

/// The colour of one pixel, 0 to 1.
struct Pixel {
  double red = 0, green = 0, blue = 0;

  [[nodiscard]] double brightness() const { return (red + green + blue) / 3; }
};

using Picture = std::function<Pixel(platform::Point)>;

} // namespace wayvane::conformance
