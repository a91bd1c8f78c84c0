#pragma once

#include <wayvane/platform/ModelObject.h>

#include <map>
#include <string>

namespace wayvane::sim {

using ModelValues = std::map<std::string, platform::ModelValue, std::less<>>;

[[nodiscard]] inline platform::ModelValue textValue(std::string text)
{
  return {platform::ModelValue::Form::String, std::move(text)};
}

[[nodiscard]] inline platform::ModelValue numberValue(std::string text)
{
  return {platform::ModelValue::Form::Number, std::move(text)};
}

[[nodiscard]] inline platform::ModelValue uriValue(std::string text)
{
  return {platform::ModelValue::Form::Uri, std::move(text)};
}

[[nodiscard]] inline platform::ModelValue nothingValue()
{
  return {platform::ModelValue::Form::Nothing, {}};
}

/// A model object with those keys and no others.
class Model : public platform::ModelObject {
public:
  explicit Model(ModelValues values)
    : values_(std::move(values))
  {}

  [[nodiscard]] std::optional<std::string> asString() const override { return std::nullopt; }

  [[nodiscard]] platform::ModelValue valueForKey(std::string_view key) const override
  {
    const auto found = values_.find(key);
    return found == values_.end() ? platform::ModelValue{} : found->second;
  }

private:
  ModelValues values_;
};

/// A model object that is itself a text.
class TextModel : public platform::ModelObject {
public:
  explicit TextModel(std::string text)
    : text_(std::move(text))
  {}

  [[nodiscard]] std::optional<std::string> asString() const override { return text_; }

  [[nodiscard]] platform::ModelValue valueForKey(std::string_view) const override { return {}; }

private:
  std::string text_;
};

[[nodiscard]] inline platform::ModelObjectHandle makeModel(ModelValues values)
{
  return std::make_shared<const Model>(std::move(values));
}

[[nodiscard]] inline platform::ModelObjectHandle makeTextModel(std::string text)
{
  return std::make_shared<const TextModel>(std::move(text));
}

} // namespace wayvane::sim
