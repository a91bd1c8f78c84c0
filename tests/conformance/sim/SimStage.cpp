#include <tests/conformance/sim/SimStage.h>
#include <tests/desktop/Raster.h>

#include <algorithm>

namespace wayvane::conformance {

using platform::Point;
using platform::Rect;
using platform::ViewHandle;
using platform::WindowHandle;

namespace {

sim::Window& simulated(const WindowHandle& window)
{
  return dynamic_cast<sim::Window&>(*window);
}

sim::View& simulated(const ViewHandle& view)
{
  return const_cast<sim::View&>(dynamic_cast<const sim::View&>(*view));
}

} // namespace

SimStage::SimStage()
{
  desktop_.setBundle("org.example.Notes", "1.4", "140");
  desktop_.defineClass("HostCanvas");
}

// Windows

WindowHandle SimStage::makeWindow(const std::string& title, const Rect& frame)
{
  return desktop_.addWindow(title, frame);
}

void SimStage::setFrame(const WindowHandle& window, const Rect& frame)
{
  simulated(window).setFrame(frame);
}

void SimStage::raise(const WindowHandle& window)
{
  const auto raised = std::dynamic_pointer_cast<sim::Window>(window);
  raised->orderFront();
  desktop_.setMainWindow(raised);
  desktop_.setKeyWindow(raised);
}

void SimStage::orderOut(const WindowHandle& window)
{
  simulated(window).orderOut();
}

void SimStage::closeWindow(const WindowHandle& window)
{
  simulated(window).close();
}

void SimStage::addToolbarItem(const WindowHandle& window, const ToolbarPiece& piece)
{
  constexpr double kWidth = 60;
  auto& toolbar = simulated(window).toolbarView();
  const double left = kWidth * static_cast<double>(toolbar.children().size());
  auto& button = toolbar.addButton({.title = piece.label.value_or(""), .frame = {left, 2, kWidth, 24}});
  simulated(window).addToolbarItem(
      {.identifier = piece.identifier, .label = piece.label, .toolTip = piece.toolTip, .view = &button});
}

// Elements

SimStage::Place SimStage::placeFor(const WindowHandle& window, const Look& look)
{
  sim::View& parent = look.inside ? simulated(look.inside) : simulated(window).content();
  const Point a = parent.convertPointFromWindow(look.frame.origin());
  const Point b = parent.convertPointFromWindow({look.frame.maxX(), look.frame.maxY()});
  return {parent, {std::min(a.x, b.x), std::min(a.y, b.y), look.frame.width, look.frame.height}};
}

ViewHandle SimStage::finish(sim::View& view, const Look& look)
{
  view.setIdentifier(look.identifier);
  view.setAccessibilityLabel(look.accessibilityLabel);
  view.setToolTip(look.toolTip);
  if (look.valueBinding) view.setBinding("value", *look.valueBinding);
  for (const auto& [property, text] : look.hostStrings)
    view.setHostString(property, text);
  for (const auto& [property, number] : look.hostNumbers)
    view.setHostNumber(property, number);
  return view.handle();
}

ViewHandle SimStage::addPlain(const WindowHandle& window, const Look& look)
{
  const Place place = placeFor(window, look);
  auto& plain = place.parent.addView("HostCanvas", {.frame = place.frame});
  tracking_[&plain] = &plain.addTrackingArea({.rect = plain.bounds(), .ownerIsView = true});
  return finish(plain, look);
}

ViewHandle SimStage::addButton(const WindowHandle& window, const Look& look, const ButtonPiece& piece)
{
  const Place place = placeFor(window, look);
  auto& button = place.parent.addButton({.title = piece.title, .frame = place.frame, .action = piece.action});
  return finish(button, look);
}

ViewHandle SimStage::addIconButton(const WindowHandle& window, const Look& look)
{
  const Place place = placeFor(window, look);
  auto& button =
      place.parent.addButton({.frame = place.frame, .imageOnly = true, .image = sim::makeImage({16, 16})});
  return finish(button, look);
}

ViewHandle SimStage::addLabel(const WindowHandle& window, const Look& look, const std::string& text)
{
  const Place place = placeFor(window, look);
  return finish(place.parent.addTextField({.value = text, .frame = place.frame}), look);
}

ViewHandle SimStage::addField(const WindowHandle& window, const Look& look, const FieldPiece& piece)
{
  const Place place = placeFor(window, look);
  auto& field = place.parent.addTextField(
      {.value = piece.value, .editable = true, .placeholder = piece.placeholder, .frame = place.frame});
  return finish(field, look);
}

ViewHandle SimStage::addTextView(const WindowHandle& window, const Look& look, const TextViewPiece& piece)
{
  const Place place = placeFor(window, look);
  auto& text =
      place.parent.addTextView({.value = piece.value, .editable = piece.editable, .frame = place.frame});
  return finish(text, look);
}

ViewHandle SimStage::addPopUp(const WindowHandle& window, const Look& look, const PopUpPiece& piece)
{
  const Place place = placeFor(window, look);
  auto& popUp =
      place.parent.addPopUpButton({.items = piece.items, .selected = piece.selected, .frame = place.frame});
  return finish(popUp, look);
}

ViewHandle SimStage::addSegments(const WindowHandle& window, const Look& look, const SegmentsPiece& piece)
{
  const Place place = placeFor(window, look);
  auto& segments = place.parent.addSegmentedControl({.labels = {piece.labels.begin(), piece.labels.end()},
                                                     .selected = piece.selected,
                                                     .frame = place.frame});
  return finish(segments, look);
}

ViewHandle SimStage::addGroupBox(const WindowHandle& window, const Look& look, const std::string& title)
{
  const Place place = placeFor(window, look);
  return finish(place.parent.addBox({.title = title, .frame = place.frame}), look);
}

namespace {

void fill(sim::TableView& table, const TablePiece& piece)
{
  for (std::size_t row = 0; row < piece.texts.size(); ++row) {
    sim::ModelValues values;
    if (row < piece.models.size())
      for (const auto& [key, text] : piece.models[row])
        values[key] = sim::textValue(text);
    table.addRow(piece.texts[row], row < piece.models.size() ? sim::makeModel(values) : nullptr);
  }
}

} // namespace

ViewHandle SimStage::addTable(const WindowHandle& window, const Look& look, const TablePiece& piece)
{
  const Place place = placeFor(window, look);
  sim::TableViewOptions options{.viewBased = piece.cells == Cells::Views};
  for (const std::string& identifier : piece.columnIdentifiers)
    options.columns.push_back({.identifier = identifier, .width = 90, .targetBindingSelector = {}});
  auto& table = place.parent.addScrollView({.frame = place.frame}).addTableDocument(options);
  table.setKnowsModelsOfDrawnRows(true);
  fill(table, piece);
  return finish(table, look);
}

ViewHandle SimStage::addScrollArea(const WindowHandle& window, const Look& look, platform::Size document)
{
  const Place place = placeFor(window, look);
  return finish(place.parent.addScrollView({.frame = place.frame, .documentSize = document}), look);
}

void SimStage::hide(const ViewHandle& view)
{
  simulated(view).setHidden(true);
}

void SimStage::destroy(const ViewHandle& view)
{
  simulated(view).destroy();
}

// What was experienced

int SimStage::pressesReceived(const ViewHandle& view)
{
  return simulated(view).clickCount();
}

int SimStage::mouseEventsReceived(const ViewHandle& view)
{
  return simulated(view).clickCount();
}

std::vector<std::string> SimStage::namesOf(const std::vector<platform::HoverEvent>& events)
{
  std::vector<std::string> names;
  for (const auto& event : events)
    names.emplace_back(event.type == platform::HoverEvent::Type::Entered ? "entered" : "exited");
  return names;
}

std::vector<std::string> SimStage::hoverReceived(const ViewHandle& view)
{
  // The desktop writes down separately what came by the way of a tracking area.
  std::vector<std::string> names = namesOf(simulated(view).hoverEvents());
  const auto tracked = tracking_.find(view.get());
  if (names.empty() && tracked != tracking_.end()) return namesOf(tracked->second->events);
  return names;
}

Picture SimStage::picture(const WindowHandle& window)
{
  constexpr platform::Rgba kWhite{1, 1, 1, 1};
  platform::Bitmap drawn;
  for (sim::OverlayPanel* overlay : desktop_.overlays())
    if (overlay->isVisible() && isSameWindow(overlay->parentWindow(), window))
      drawn = sim::renderLayer(*overlay->contentView().layer(), desktop_.now(), 1,
                               platform::Appearance::Light, kWhite);
  return [drawn = std::move(drawn), kWhite](Point point) {
    const platform::Rgba seen = drawn.width > 0 ? sim::pixelAt(drawn, point) : kWhite;
    return Pixel{seen.red, seen.green, seen.blue};
  };
}

// The user

bool SimStage::pressPanelButton(Point screenPoint)
{
  const auto window = desktop_.application().windowAt(screenPoint);
  for (sim::FloatingPanel* panel : desktop_.floatingPanels()) {
    if (!isSameWindow(panel->window(), window)) continue;
    for (const auto& button : panel->buttons())
      if (button->frame().contains(window->convertPointFromScreen(screenPoint)))
        return desktop_.clickPanelButton(*panel, button->title());
  }
  return false;
}

void SimStage::press(Point screenPoint)
{
  if (!pressPanelButton(screenPoint)) desktop_.click(screenPoint);
}

void SimStage::doublePress(Point screenPoint)
{
  // The second press belongs to the first.
  if (desktop_.click(screenPoint).verdict == platform::EventVerdict::PassOn) desktop_.click(screenPoint);
}

void SimStage::drag(Point from, Point /*to*/)
{
  desktop_.click(from);
}

void SimStage::moveMouse(Point screenPoint)
{
  desktop_.moveMouse(screenPoint);
}

// Surroundings

std::string SimStage::emptyFolder()
{
  const std::string folder = "/home/user/documents";
  desktop_.files().remove(folder);
  desktop_.files().makeFolder(folder);
  return folder;
}

void SimStage::addHostTable(const std::string& table, const std::string& language,
                            const platform::StringTable& texts)
{
  if (table == "Wayvane")
    desktop_.setFrameworkTable(language, texts);
  else
    desktop_.setHostTable(table, language, texts);
}

std::unique_ptr<Stage> makeStage()
{
  return std::make_unique<SimStage>();
}

std::shared_ptr<void> startToolkit(int&, char**)
{
  return nullptr;
}

const std::vector<NotOnThisToolkit> kNotOnThisToolkit;

} // namespace wayvane::conformance
