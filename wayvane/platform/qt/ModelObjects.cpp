#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/ModelObjects.h>

#include <QAbstractItemModel>
#include <QJsonObject>
#include <QMetaProperty>
#include <QPointer>
#include <QUrl>
#include <QUuid>

namespace wayvane::qt {

using platform::ModelObjectHandle;
using platform::ModelValue;

namespace {

bool isNumber(const QVariant& value)
{
  switch (value.typeId()) {
  case QMetaType::Bool:
  case QMetaType::Int:
  case QMetaType::UInt:
  case QMetaType::LongLong:
  case QMetaType::ULongLong:
  case QMetaType::Double:
  case QMetaType::Float:
  case QMetaType::Short:
  case QMetaType::UShort:
  case QMetaType::Long:
  case QMetaType::ULong:
  case QMetaType::Char:
  case QMetaType::SChar:
  case QMetaType::UChar:
    return true;
  default:
    return value.metaType().flags().testFlag(QMetaType::IsEnumeration);
  }
}

QString numberText(const QVariant& value)
{
  switch (value.typeId()) {
  case QMetaType::Double:
  case QMetaType::Float:
    return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
  case QMetaType::ULongLong:
  case QMetaType::ULong:
    return QString::number(value.toULongLong());
  default:
    return QString::number(value.toLongLong());
  }
}

ModelValue modelValueOf(const QVariant& value)
{
  using Form = ModelValue::Form;
  if (isNumber(value)) return {Form::Number, toUtf8(numberText(value))};
  switch (value.typeId()) {
  case QMetaType::QString:
  case QMetaType::QByteArray:
  case QMetaType::QChar:
    return {Form::String, toUtf8(value.toString())};
  case QMetaType::QUuid:
    return {Form::String, toUtf8(value.toUuid().toString(QUuid::WithoutBraces))};
  case QMetaType::QUrl: {
    const QString text = value.toUrl().toString();
    return text.isEmpty() ? ModelValue{Form::Nothing, {}} : ModelValue{Form::Uri, toUtf8(text)};
  }
  default:
    return {Form::Nothing, {}};
  }
}

class TextObject final : public platform::ModelObject {
public:
  explicit TextObject(const QString& text)
    : text_(toUtf8(text))
  {}

  [[nodiscard]] std::optional<std::string> asString() const override { return text_; }

  [[nodiscard]] ModelValue valueForKey(std::string_view) const override { return {}; }

private:
  std::string text_;
};

/// Named values: a map, a gadget's properties, or the one name under which a bare number goes.
class MapObject final : public platform::ModelObject {
public:
  explicit MapObject(QVariantMap map)
    : map_(std::move(map))
  {}

  [[nodiscard]] std::optional<std::string> asString() const override { return std::nullopt; }

  [[nodiscard]] ModelValue valueForKey(std::string_view key) const override
  {
    const auto found = map_.constFind(toQString(key));
    return found == map_.constEnd() ? ModelValue{} : modelValueOf(*found);
  }

private:
  QVariantMap map_;
};

class GadgetObject final : public platform::ModelObject {
public:
  explicit GadgetObject(QVariant gadget)
    : gadget_(std::move(gadget))
  {}

  [[nodiscard]] std::optional<std::string> asString() const override { return std::nullopt; }

  [[nodiscard]] ModelValue valueForKey(std::string_view key) const override
  {
    const QMetaObject* metaObject = gadget_.metaType().metaObject();
    const int property = metaObject->indexOfProperty(std::string(key).c_str());
    return property < 0 ? ModelValue{}
                        : modelValueOf(metaObject->property(property).readOnGadget(gadget_.constData()));
  }

private:
  QVariant gadget_;
};

class LivingObject final : public platform::ModelObject {
public:
  explicit LivingObject(QObject* object)
    : object_(object)
  {}

  [[nodiscard]] std::optional<std::string> asString() const override { return std::nullopt; }

  [[nodiscard]] ModelValue valueForKey(std::string_view key) const override
  {
    const std::string name(key);
    const bool isKnown = object_ && (object_->metaObject()->indexOfProperty(name.c_str()) >= 0 ||
                                     object_->dynamicPropertyNames().contains(name.c_str()));
    return isKnown ? modelValueOf(object_->property(name.c_str())) : ModelValue{};
  }

private:
  QPointer<QObject> object_;
};

/// What a row shares with the next one is a kind, a state or a mark, and tells no row from another.
bool isSharedWithNeighbour(const QModelIndex& index, const QVariant& value)
{
  const auto isAt = [&](int row) {
    const QModelIndex neighbour = index.sibling(row, index.column());
    return neighbour.isValid() && neighbour.data(Qt::UserRole) == value;
  };
  return isAt(index.row() - 1) || isAt(index.row() + 1);
}

ModelObjectHandle underOneKey(const QString& key, const QVariant& value)
{
  return std::make_shared<MapObject>(QVariantMap{{key, value}});
}

} // namespace

ModelObjectHandle modelObjectOf(const QVariant& value)
{
  const QMetaType type = value.metaType();
  if (!value.isValid()) return nullptr;
  if (type.flags().testFlag(QMetaType::PointerToQObject)) {
    auto* object = value.value<QObject*>();
    return object ? std::make_shared<LivingObject>(object) : nullptr;
  }
  if (type.flags().testFlag(QMetaType::IsGadget) && type.metaObject())
    return std::make_shared<GadgetObject>(value);
  if (isNumber(value)) return underOneKey(QStringLiteral("id"), value);
  switch (value.typeId()) {
  case QMetaType::QVariantMap:
  case QMetaType::QVariantHash:
    return std::make_shared<MapObject>(value.toMap());
  case QMetaType::QJsonObject:
    return std::make_shared<MapObject>(value.toJsonObject().toVariantMap());
  case QMetaType::QUuid:
    return underOneKey(QStringLiteral("uuid"), value);
  case QMetaType::QUrl:
    return underOneKey(QStringLiteral("identifier"), value);
  case QMetaType::QString:
    return std::make_shared<TextObject>(value.toString());
  default:
    return nullptr;
  }
}

ModelObjectHandle modelObjectOfIndex(const QModelIndex& index)
{
  if (!index.isValid()) return nullptr;
  QModelIndex source = index;
  QVariant value = source.data(Qt::UserRole);
  if (!value.isValid()) {
    source = index.siblingAtColumn(0);
    value = source.data(Qt::UserRole);
  }
  if (isNumber(value) && isSharedWithNeighbour(source, value)) return nullptr;
  return modelObjectOf(value);
}

} // namespace wayvane::qt
