#pragma once

#include <cstdint>
#include <initializer_list>

namespace wayvane::platform {

/// What a search may look at in a view.
enum class Feature : std::uint8_t {
  Subviews,
  Identifier,   ///< the accessibility identifier
  HostAnswers,  ///< any HostProperty
  Bindings,     ///< the observed key path of any binding
  FieldEditor,  ///< it is the editor that a text field borrows
  Action,       ///< it is a control that sends one
  TitleOrLabel, ///< it is a button, or has an accessibility label
};

/// A set of them; a word.
class Features {
public:
  constexpr Features() = default;

  constexpr Features(std::initializer_list<Feature> features)
  {
    for (const Feature feature : features)
      add(feature);
  }

  [[nodiscard]] static constexpr Features all()
  {
    Features features;
    features.bits_ = ~std::uint32_t{0};
    return features;
  }

  constexpr void add(Feature feature) { bits_ |= bit(feature); }

  constexpr void remove(Feature feature) { bits_ &= ~bit(feature); }

  [[nodiscard]] constexpr bool hasAnyOf(Features others) const { return (bits_ & others.bits_) != 0; }

private:
  static constexpr std::uint32_t bit(Feature feature)
  {
    return std::uint32_t{1} << static_cast<unsigned>(feature);
  }

  std::uint32_t bits_ = 0;
};

} // namespace wayvane::platform
