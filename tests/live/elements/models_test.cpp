#include <wayvane/platform/qt/ModelObjects.h>

#include <QJsonObject>
#include <QObject>
#include <QStandardItemModel>
#include <QUrl>
#include <QUuid>

#include <gmock/gmock.h>

namespace wayvane::qt {

/// A tour as a host keeps it.
class Tour {
  Q_GADGET
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(int id MEMBER id)

public:
  QString name;
  int id = 0;
};

namespace {

using platform::ModelValue;
using testing::IsNull;
using testing::NotNull;
using testing::Optional;
using Form = ModelValue::Form;

void expectValue(const QVariant& object, const char* key, Form form, const std::string& text)
{
  const auto model = modelObjectOf(object);
  ASSERT_THAT(model, NotNull());
  EXPECT_EQ(model->valueForKey(key).form, form);
  EXPECT_EQ(model->valueForKey(key).text, text);
}

TEST(Models, NothingIsNoObject)
{
  EXPECT_THAT(modelObjectOf({}), IsNull());
  EXPECT_THAT(modelObjectOf(QVariant::fromValue<QObject*>(nullptr)), IsNull());
  EXPECT_THAT(modelObjectOf(QVariant(QSize(1, 2))), IsNull());
  EXPECT_THAT(modelObjectOfIndex({}), IsNull());
}

TEST(Models, ATextIsItself)
{
  const auto model = modelObjectOf(QStringLiteral("Row A"));
  ASSERT_THAT(model, NotNull());
  EXPECT_THAT(model->asString(), Optional(std::string("Row A")));
  EXPECT_EQ(model->valueForKey("name").form, Form::NoSuchKey);
}

TEST(Models, ANumberIsAnIdentity)
{
  expectValue(42, "id", Form::Number, "42");
  expectValue(QVariant::fromValue<qulonglong>(18446744073709551615ULL), "id", Form::Number,
              "18446744073709551615");
  expectValue(42, "uuid", Form::NoSuchKey, "");
}

TEST(Models, AUuidIsAnIdentity)
{
  const QUuid uuid(QStringLiteral("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"));
  expectValue(uuid, "uuid", Form::String, "67c8770b-44f1-410a-ab9a-f9b5446f13ee");
}

TEST(Models, AMapIsReadByKey)
{
  const QVariantMap map{{"name", "Alps"}, {"id", 7},    {"length", 12.5},      {"isDraft", true},
                        {"empty", ""},    {"none", {}}, {"place", QSize(1, 2)}};
  expectValue(map, "name", Form::String, "Alps");
  expectValue(map, "id", Form::Number, "7");
  expectValue(map, "length", Form::Number, "12.5");
  expectValue(map, "isDraft", Form::Number, "1");
  expectValue(map, "empty", Form::String, "");
  expectValue(map, "none", Form::Nothing, "");
  expectValue(map, "place", Form::Nothing, "");
  expectValue(map, "colour", Form::NoSuchKey, "");
  EXPECT_FALSE(modelObjectOf(map)->asString());
}

TEST(Models, HashesAndJsonObjectsAreMaps)
{
  expectValue(QVariantHash{{"name", "Alps"}}, "name", Form::String, "Alps");
  expectValue(QJsonObject{{"name", "Alps"}}, "name", Form::String, "Alps");
}

TEST(Models, AUrlIsAPersistentIdentity)
{
  expectValue(QVariantMap{{"objectID", QUrl("x-coredata://tour/7")}}, "objectID", Form::Uri,
              "x-coredata://tour/7");
  expectValue(QVariantMap{{"objectID", QUrl()}}, "objectID", Form::Nothing, "");
}

TEST(Models, AGadgetIsReadByItsProperties)
{
  Tour tour;
  tour.name = QStringLiteral("Alps");
  tour.id = 7;
  expectValue(QVariant::fromValue(tour), "name", Form::String, "Alps");
  expectValue(QVariant::fromValue(tour), "id", Form::Number, "7");
  expectValue(QVariant::fromValue(tour), "colour", Form::NoSuchKey, "");
}

TEST(Models, AnObjectIsReadByItsPropertiesAsLongAsItLives)
{
  auto object = std::make_unique<QObject>();
  object->setProperty("uuid", QStringLiteral("A1"));
  object->setObjectName(QStringLiteral("tour"));
  const auto model = modelObjectOf(QVariant::fromValue(object.get()));
  EXPECT_EQ(model->valueForKey("uuid").text, "A1");
  EXPECT_EQ(model->valueForKey("objectName").text, "tour");
  EXPECT_EQ(model->valueForKey("name").form, Form::NoSuchKey);
  object.reset();
  EXPECT_EQ(model->valueForKey("uuid").form, Form::NoSuchKey);
}

TEST(Models, TheFirstItemOfARowSpeaksForTheOthers)
{
  QStandardItemModel model(1, 2);
  model.setData(model.index(0, 0), 7, Qt::UserRole);
  ASSERT_THAT(modelObjectOfIndex(model.index(0, 1)), NotNull());
  EXPECT_EQ(modelObjectOfIndex(model.index(0, 1))->valueForKey("id").text, "7");
  model.setData(model.index(0, 1), 8, Qt::UserRole);
  EXPECT_EQ(modelObjectOfIndex(model.index(0, 1))->valueForKey("id").text, "8");
}

TEST(Models, ANumberThatTheNextRowSharesIdentifiesNone)
{
  QStandardItemModel model(4, 1);
  for (const int row : {0, 1, 2, 3})
    model.setData(model.index(row, 0), row < 2 ? 0 : row, Qt::UserRole);
  EXPECT_THAT(modelObjectOfIndex(model.index(0, 0)), IsNull());
  EXPECT_THAT(modelObjectOfIndex(model.index(1, 0)), IsNull());
  ASSERT_THAT(modelObjectOfIndex(model.index(2, 0)), NotNull());
  EXPECT_EQ(modelObjectOfIndex(model.index(2, 0))->valueForKey("id").text, "2");
}

} // namespace

} // namespace wayvane::qt

#include "models_test.moc"
