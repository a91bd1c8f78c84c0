#include <wayvane/model/RecordErrors.h>
#include <wayvane/model/RecordReader.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <type_traits>

namespace wayvane {
namespace {

std::int64_t saturated(double number)
{
  constexpr double end = 9223372036854775808.0;
  if (std::isnan(number)) return 0;
  if (number >= end) return std::numeric_limits<std::int64_t>::max();
  if (number < -end) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(number);
}

/// A number or flag as another kind of one.
template <class Value, class Number>
Value converted(Number number)
{
  if constexpr (std::is_same_v<Value, bool>)
    return number != Number{};
  else if constexpr (std::is_same_v<Value, std::int64_t> && std::is_same_v<Number, double>)
    return saturated(number);
  else if constexpr (std::is_same_v<Value, std::int64_t> && std::is_same_v<Number, std::uint64_t>)
    return static_cast<std::int64_t>(std::min<Number>(number, std::numeric_limits<std::int64_t>::max()));
  else
    return static_cast<Value>(number);
}

/// Builds records while the parser walks over the document. Every value is met with a slot that says where
/// it belongs; what has no slot is passed over.
class Handler final : public nlohmann::json_sax<nlohmann::json> {
public:
  template <class Record>
  Handler(RecordForm form, Record& root)
    : form_(form)
    , slot_(Place<Record>{&root})
    , root_(true)
  {}

  [[nodiscard]] bool foundRecord() const { return foundRecord_; }

  [[nodiscard]] const std::optional<Error>& error() const { return error_; }

  bool null() override { return scalar(nullptr); }

  bool boolean(bool flag) override { return scalar(flag); }

  bool number_integer(number_integer_t number) override { return scalar(std::int64_t{number}); }

  bool number_unsigned(number_unsigned_t number) override { return scalar(std::uint64_t{number}); }

  bool number_float(number_float_t number, const string_t&) override { return scalar(double{number}); }

  bool string(string_t& text) override { return scalar(&text); }

  bool binary(binary_t&) override { return false; }

  bool key(string_t& name) override
  {
    if (passedOver_ == 0) std::visit([&](auto place) { choose(place, name); }, open_[opened_ - 1]);
    return true;
  }

  bool start_object(std::size_t) override
  {
    return enter() && std::visit([this](auto place) { return beginObject(place); }, std::exchange(slot_, {}));
  }

  bool start_array(std::size_t) override
  {
    return enter() && std::visit([this](auto place) { return beginArray(place); }, std::exchange(slot_, {}));
  }

  bool end_object() override { return leave(); }

  bool end_array() override { return leave(); }

  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& exception) override
  {
    constexpr std::size_t longest = 500;
    error_ = Error{"json", exception.id, std::string(exception.what()).substr(0, longest), {}};
    return false;
  }

private:
  /// Where a value belongs. As a slot, what the next value is for; as an opened place, what the keys that
  /// follow are of.
  template <class Value>
  struct Place {
    Value* value = nullptr;
    /// What the field says when it says nothing.
    std::conditional_t<std::is_arithmetic_v<Value>, Value, std::monostate> fallback{};
  };

  struct Entry {
    LocalizationDictionary* dictionary = nullptr;
    std::string key;
  };

  struct Element {
    std::vector<WVStep>* steps = nullptr;
  };

  struct Nowhere {};

  using Text = std::optional<std::string>;
  using Dictionary = std::optional<LocalizationDictionary>;
  using Slot = std::variant<Nowhere, Place<WVGuide>, Place<WVStep>, Place<WVTargetDescriptor>, Place<Text>,
                            Place<Dictionary>, Place<std::int64_t>, Place<double>, Place<bool>,
                            Place<std::vector<WVStep>>, Element, Entry>;
  using Opened = std::variant<Nowhere, Place<WVGuide>, Place<WVStep>, Place<WVTargetDescriptor>,
                              Place<Dictionary>, Place<std::vector<WVStep>>>;

  // Keys: which slot comes next

  template <class Value>
  void choose(Place<Value> place, std::string& name)
  {
    slot_ = Nowhere{};
    if constexpr (std::is_same_v<Value, Dictionary>)
      slot_ = Entry{&**place.value, std::move(name)};
    else if constexpr (!std::is_same_v<Value, std::vector<WVStep>>)
      for (const RecordField<Value>& field : fieldsOf(*place.value))
        if (field.key == name && (!field.archiveOnly || form_ == RecordForm::Archive)) {
          std::visit([&](auto member) { slot_ = placeOf(*place.value, member); }, field.member);
          return;
        }
  }

  void choose(Nowhere, const std::string&) {}

  template <class Record, class Value>
  Place<Value> placeOf(Record& record, Value Record::*member)
  {
    Place<Value> place{&(record.*member)};
    if constexpr (std::is_arithmetic_v<Value>) place.fallback = blank<Record>().*member;
    return place;
  }

  /// A record without a single key. In archives, unlike everywhere else, the row of a target is then 0.
  template <class Record>
  [[nodiscard]] Record blank() const
  {
    Record record;
    if constexpr (std::is_same_v<Record, WVTargetDescriptor>)
      if (form_ == RecordForm::Archive) record.tableRow = 0;
    return record;
  }

  // Values

  template <class Scalar>
  bool scalar(Scalar value)
  {
    if (root_) return fail(notAnObjectError());
    if (passedOver_ == 0) std::visit([&](auto& place) { assign(place, value); }, slot_);
    return true;
  }

  template <class Value, class Scalar>
  void assign(Place<Value>& place, Scalar value)
  {
    if constexpr (std::is_arithmetic_v<Value> && std::is_arithmetic_v<Scalar>)
      *place.value = converted<Value>(value);
    else if constexpr (std::is_same_v<Value, Text> && std::is_same_v<Scalar, std::string*>)
      *place.value = std::move(*value);
    else
      clear(place);
  }

  template <class Scalar>
  void assign(Entry& entry, Scalar value)
  {
    if constexpr (std::is_same_v<Scalar, std::string*>)
      entry.dictionary->insert_or_assign(std::move(entry.key), std::move(*value));
    else
      clear(entry);
  }

  template <class Scalar>
  void assign(const Element&, Scalar)
  {}

  template <class Scalar>
  void assign(const Nowhere&, Scalar)
  {}

  template <class Value>
  static void clear(const Place<Value>& place)
  {
    if constexpr (std::is_arithmetic_v<Value>)
      *place.value = place.fallback;
    else
      *place.value = Value{};
  }

  static void clear(const Entry& entry) { entry.dictionary->erase(entry.key); }

  static void clear(const Element&) {}

  static void clear(const Nowhere&) {}

  // Arrays and objects

  bool enter()
  {
    if (++depth_ > kRecordNestingLimit) return fail(nestedTooDeeplyError());
    return true;
  }

  bool leave()
  {
    --depth_;
    if (passedOver_ > 0)
      --passedOver_;
    else
      open_[--opened_] = Nowhere{};
    slot_ = Nowhere{};
    if (opened_ > 0 && passedOver_ == 0)
      if (const auto* steps = std::get_if<Place<std::vector<WVStep>>>(&open_[opened_ - 1]))
        slot_ = Element{steps->value};
    return true;
  }

  bool passOver()
  {
    ++passedOver_;
    return true;
  }

  template <class Value>
  bool opens(Place<Value> place)
  {
    root_ = false;
    open_[opened_++] = place;
    return true;
  }

  template <class Record>
  requires std::is_class_v<decltype(fieldsOf(std::declval<Record>()))>

  bool beginObject(Place<Record> place)
  {
    if (root_) foundRecord_ = true;
    *place.value = blank<Record>();
    return opens(place);
  }

  bool beginObject(Place<Dictionary> place)
  {
    place.value->emplace();
    return opens(place);
  }

  bool beginObject(Element element)
  {
    if (element.steps->size() == kRecordStepLimit) return fail(tooManyStepsError());
    element.steps->emplace_back();
    return opens(Place<WVStep>{&element.steps->back()});
  }

  template <class Other>
  bool beginObject(Other other)
  {
    return wrongKind(other);
  }

  bool beginArray(Place<std::vector<WVStep>> place)
  {
    place.value->clear();
    slot_ = Element{place.value};
    return opens(place);
  }

  template <class Other>
  bool beginArray(Other other)
  {
    return wrongKind(other);
  }

  template <class Other>
  bool wrongKind(Other& other)
  {
    if (root_) return fail(notAnObjectError());
    if (passedOver_ == 0) clear(other);
    return passOver();
  }

  bool fail(Error error)
  {
    error_ = std::move(error);
    return false;
  }

  /// A guide, its steps, a step, its target, a dictionary: no record is nested deeper.
  std::array<Opened, 5> open_;
  std::size_t opened_ = 0;
  RecordForm form_;
  Slot slot_;
  bool root_ = false;
  bool foundRecord_ = false;
  int depth_ = 0;
  int passedOver_ = 0;
  std::optional<Error> error_;
};

} // namespace

template <class Record>
std::optional<Record> readRecord(std::string_view bytes, RecordForm form, Error* error)
{
  try {
    Record record;
    Handler handler(form, record);
    if (nlohmann::json::sax_parse(bytes.begin(), bytes.end(), &handler) && handler.foundRecord())
      return record;
    platform::setError(error, handler.error().value_or(notAnObjectError()));
  } catch (const std::exception& exception) {
    platform::setError(error, outOfMemoryError(exception));
  }
  return std::nullopt;
}

template std::optional<WVGuide> readRecord(std::string_view, RecordForm, Error*);
template std::optional<WVStep> readRecord(std::string_view, RecordForm, Error*);
template std::optional<WVTargetDescriptor> readRecord(std::string_view, RecordForm, Error*);

} // namespace wayvane
