#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace wayvane::platform {

/// What reading one key of a model object gave.
struct ModelValue {
  enum class Form : std::uint8_t {
    NoSuchKey, ///< the object does not know the key
    Nothing,   ///< the key is known and empty, or the value has no text form
    String,    ///< a text
    Number,    ///< not a text, but has a text form
    Uri,       ///< a persistent identity that has the form of a URI
  };
  Form form = Form::NoSuchKey;
  std::string text;
};

/// The object of the host's model that a table row shows, read by key and never changed.
class ModelObject {
public:
  virtual ~ModelObject() = default;
  /// The text, when the object is itself one.
  [[nodiscard]] virtual std::optional<std::string> asString() const = 0;
  [[nodiscard]] virtual ModelValue valueForKey(std::string_view key) const = 0;
};

using ModelObjectHandle = std::shared_ptr<const ModelObject>;

} // namespace wayvane::platform
