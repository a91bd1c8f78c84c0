#include <wayvane/model/WVLocalization.h>
#include <wayvane/overlay/Lowercase.h>
#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/Format.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/ViewProperties.h>

#include <algorithm>
#include <array>

namespace wayvane {

using namespace platform;

struct WVBubbleView::Message {
  std::string text;
  ViewHandle view;
  ImageHandle icon;

  [[nodiscard]] bool isStyled() const { return text.find("[ICON:") != std::string::npos; }
};

namespace {

constexpr std::array<std::string_view, 6> kStockMessages{"Click here", "Hier klicken",   "Cliquez ici",
                                                         "Clicca qui", "Haga clic aquí", "Klik hier"};

std::string clickToContinue()
{
  return wv_localizedWithDefault("WV.Message.ClickToContinue", "Click to continue");
}

std::string clickOnNamed(const std::string& name)
{
  return format(wv_localizedWithDefault("WV.Message.ClickOnNamed", "Click on \"%@\""), {name});
}

std::string clickOnIcon()
{
  return wv_localizedWithDefault("WV.Message.ClickOnIcon", "Click on %@");
}

std::string messageForField(const TextField& field)
{
  const std::string placeholder = field.placeholderString().value_or("");
  if (placeholder.empty()) return wv_localizedWithDefault("WV.Message.EnterText", "Enter text");
  return format(wv_localizedWithDefault("WV.Message.EnterValue", "Enter %@"), {lowercased(placeholder)});
}

/// The tool tip of the view without the shortcut in parentheses at its end; nothing when it has none.
std::optional<std::string> toolTipOf(const ViewHandle& view)
{
  const std::string toolTip = view ? wv_localizedToolTip(*view).value_or("") : "";
  if (toolTip.empty()) return std::nullopt;
  return toolTip.substr(0, toolTip.rfind(" ("));
}

ImageHandle iconOf(const ViewHandle& view)
{
  return view ? wv_buttonIcon(*view) : nullptr;
}

std::string spokenIconMessage(const ViewHandle& view)
{
  const std::string toolTip = toolTipOf(view).value_or("");
  const std::string name = view ? wv_localizedTitle(*view).value_or("") : "";
  if (name.empty()) return clickToContinue();
  std::string spoken = format(clickOnIcon(), {name});
  if (!toolTip.empty() && toolTip != name) spoken += " (" + toolTip + ")";
  return spoken;
}

AttributedText::Run textRun(const std::string& text, const Font& font, const Color& color = Color::label())
{
  return {text, font, color, nullptr, {}};
}

AttributedText::Run iconRun(const ImageHandle& icon, const Font& font)
{
  // A little larger than the letters, and as deep as their descenders.
  const double side = font.size + 2;
  return {"\uFFFC", font, Color::label(), icon, {0, -2, side, side}};
}

} // namespace

void WVBubbleView::showMessage(const WVStep& step, Rect& column)
{
  const Message message = messageForStep(step);
  double height = 0;
  if (message.isStyled()) {
    const AttributedText styled =
        _createAttributedMessageFromTemplate(message.text, message.view, message.icon);
    messageLabel_->setAttributedStringValue(styled);
    height = _heightForAttributedString(styled, column.width);
    const bool hasIcon = std::ranges::any_of(
        styled.runs, [](const AttributedText::Run& run) { return run.attachment != nullptr; });
    spokenMessage_ = hasIcon ? spokenIconMessage(message.view) : message.text;
  } else {
    messageLabel_->setStringValue(message.text);
    height = _heightForString(message.text, messageLabel_->font(), column.width);
    spokenMessage_ = message.text;
  }
  messageLabel_->setFrame({column.x, column.y, column.width, height});
  column.y += height + 8;
}

WVBubbleView::Message WVBubbleView::messageForStep(const WVStep& step) const
{
  Message message{step.localizedMessage().value_or(""), step.target.resolveInWindow(nullptr), nullptr};
  message.icon = step.target.iconForResolvedView(message.view);
  const bool isStock = std::ranges::find(kStockMessages, message.text) != kStockMessages.end();
  if (message.text.empty() || isStock) {
    if (message.icon)
      message.text = kButtonIconToken;
    else if (message.view)
      message.text = _generateSmartMessageForView(message.view);
  }
  if (message.isStyled() && !message.icon) message.icon = iconOf(message.view);
  return message;
}

std::string WVBubbleView::_generateSmartMessageForView(const ViewHandle& view) const
{
  if (!view) return clickToContinue();
  const std::string name = wv_displayString(*view).value_or("");
  if (name == kButtonIconToken) return name;
  const auto* field = view->as<TextField>();
  if (field && field->isEditable()) return messageForField(*field);
  if (const auto* popUp = view->as<PopUpButton>())
    return format(wv_localizedWithDefault("WV.Message.ChooseFrom", "Choose from \"%@\""),
                  {popUp->titleOfSelectedItem().value_or("")});
  if (view->isKind(ViewKind::SegmentedControl))
    return wv_localizedWithDefault("WV.Message.SelectOption", "Select an option");
  if (view->isKind(ViewKind::TableView))
    return wv_localizedWithDefault("WV.Message.SelectRow", "Select a row");
  if (view->isKind(ViewKind::TableCellView))
    return name.empty() ? wv_localizedWithDefault("WV.Message.ClickOnRow", "Click on row")
                        : clickOnNamed(name);
  if (name.empty()) return clickToContinue();
  if (view->isKind(ViewKind::Button))
    return format(wv_localizedWithDefault("WV.Message.ClickOnButton", "Click on \"%@\" button"), {name});
  return clickOnNamed(name);
}

AttributedText WVBubbleView::_createAttributedMessageFromTemplate(const std::string& text,
                                                                  const ViewHandle& forView,
                                                                  const ImageHandle& icon) const
{
  const Font& font = messageLabel_->font();
  const ImageHandle image = icon ? icon : iconOf(forView);
  const std::string sentence = clickOnIcon();
  const std::size_t place = sentence.find("%@");
  if (text.find(kButtonIconToken) == std::string::npos || !image || place == std::string::npos)
    return {{textRun(text, font)}};
  AttributedText result;
  if (place > 0) result.runs.push_back(textRun(sentence.substr(0, place), font));
  result.runs.push_back(iconRun(image, font));
  if (place + 2 < sentence.size()) result.runs.push_back(textRun(sentence.substr(place + 2), font));
  if (const auto toolTip = toolTipOf(forView))
    result.runs.push_back(textRun(format(" (%@)", {*toolTip}), font, Color::secondaryLabel()));
  return result;
}

} // namespace wayvane
