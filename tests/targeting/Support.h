#pragma once

#include <tests/desktop/Desktop.h>
#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/targeting/TranslationSource.h>

#include <gtest/gtest.h>

#include <map>

namespace wayvane {

/// A program with one window, empty so far.
class Targeting : public ::testing::Test {
protected:
  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main");
  sim::View& content = window->content();
};

/// String tables of a host, as far as a test needs them; in use while it lives.
class FixedTranslations : public TranslationSource {
public:
  explicit FixedTranslations(std::map<std::string, LocalizationDictionary, std::less<>> texts)
    : texts_(std::move(texts))
  {
    setCurrent(this);
  }

  [[nodiscard]] std::optional<LocalizationDictionary>
  allLocalizationsForString(std::string_view text) const override
  {
    const auto found = texts_.find(text);
    return found == texts_.end() ? std::nullopt : std::optional(found->second);
  }

private:
  std::map<std::string, LocalizationDictionary, std::less<>> texts_;
};

inline ::testing::AssertionResult isView(const platform::ViewHandle& found, const platform::View& expected)
{
  if (found && found->isSame(expected)) return ::testing::AssertionSuccess();
  if (!found) return ::testing::AssertionFailure() << "no view";
  return ::testing::AssertionFailure() << "another view, of class " << found->className();
}

inline ::testing::AssertionResult isNothing(const platform::ViewHandle& found)
{
  if (!found) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "a view of class " << found->className();
}

/// Hit by whoever presses the middle of the view; window coordinates.
inline platform::Point centerInWindow(const platform::View& view)
{
  return view.convertRectToWindow(view.bounds()).center();
}

/// A cell that a table draws, or the text of a cell view.
inline platform::TableCell cellWithText(std::string text, platform::ImageHandle image = nullptr)
{
  platform::TableCell cell;
  cell.stringValue = std::move(text);
  cell.image = std::move(image);
  return cell;
}

inline std::string repeated(std::string_view text, int times)
{
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

} // namespace wayvane
