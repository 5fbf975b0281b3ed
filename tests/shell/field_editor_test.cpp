#include "shell/editor/field_editor.h"

#include <gtest/gtest.h>

#include "shell/editor/day_field_edit.h"
#include "shell/editor/detail_forms.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/entry_forms.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;
using lad::testing::nth;

std::string sourceOf(const FieldEditor& e, std::string_view field) {
  return (*e.row(field))["source"].text();
}

TEST_F(ApplicationTest, ClosingStopsAtTheFirstEmptyRequiredRowInOrder) {
  launchApp();
  const Context& c = app->context();
  FieldEditor e(
      c, "Новый продукт",
      {detailRow(c, kText, "Укажите", ""),
       detailRow(c, kTextInput, "Название", "name", true, "Название нового типа"),
       listRow(c, "tip", "Продукт", 1, 1, true), detailRow(c, kTextInput, "Заметка", "note")},
      {});
  auto refused = e.close();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->text, "Поле 'Название нового типа' не заполнено!");
  EXPECT_TRUE(e.change("name", Value("Кефир")));
  refused = e.close();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->text, "В списке не отмечен ни один пункт!");
  EXPECT_TRUE(e.change("tip", Value(List{})));
  EXPECT_TRUE(e.close()) << "an emptied list is still empty";
  EXPECT_TRUE(e.change("tip", Value(List{Value("g1")})));
  EXPECT_FALSE(e.close()) << "an optional row may stay empty";
  EXPECT_FALSE(e.change("missing", Value("x")));
  EXPECT_FALSE(e.change("", Value("x"))) << "rows without a field take no value";
}

TEST_F(ApplicationTest, ScalesAreWrittenByTheirTypeAndEmptiedAtOrBelowZero) {
  launchApp();
  const Context& c = app->context();
  auto e = detailPrepare(c, {16, "Рождение", "Укажите", ""});
  ASSERT_TRUE(e);
  EXPECT_FALSE((*e->row("rost"))["startactive"].boolValue());
  e->change("rost", Value(50));
  e->change("ves", Value(-3));
  auto refused = e->close();
  ASSERT_TRUE(refused) << "a weight left at the minimum means nothing was measured";
  EXPECT_EQ(refused->text, "Поле 'Вес малыша (кг.)' не заполнено!");
  EXPECT_EQ(sourceOf(*e, "rost"), "50.0");
  EXPECT_EQ(sourceOf(*e, "ves"), "");
  e->change("ves", Value(3.5));
  EXPECT_FALSE(e->close());
  EXPECT_EQ(sourceOf(*e, "ves"), "3.500");

  FieldEditor kinds(c, "",
                    {detailRow(c, kSegments, "", "sex"), detailRow(c, kLongText, "", "text"),
                     detailRow(c, kPhoto, "", "photo")},
                    {});
  kinds.change("sex", Value("2"));
  kinds.change("photo", Value("not a picture"));
  kinds.close();
  EXPECT_EQ((*kinds.row("sex"))["source"], Value(2));
  EXPECT_EQ((*kinds.row("text"))["source"], Value(""));
  EXPECT_TRUE((*kinds.row("photo"))["source"].isNull());
}

TEST_F(ApplicationTest, FormsTakeTheirStartingValuesFromThePresentOne) {
  launchApp();
  const Context& c = app->context();
  auto temp = detailPrepare(c, {4, "Температура", "Укажите температуру", ""});
  ASSERT_TRUE(temp);
  EXPECT_EQ(sourceOf(*temp, "temp"), "36.6");
  EXPECT_TRUE((*temp->row("temp"))["startactive"].boolValue()) << "a scale with a value starts on";

  auto ultrasound = detailPrepare(c, {15, "УЗИ", "", R"({"rost":"31.5","ves":"1.200"})"});
  EXPECT_EQ(sourceOf(*ultrasound, "ves"), "1.200");
  auto broken = detailPrepare(c, {15, "УЗИ", "", "{not json"});
  ASSERT_TRUE(broken);
  EXPECT_EQ(sourceOf(*broken, "rost"), "") << "an unreadable value starts the form empty";

  EXPECT_FALSE(detailPrepare(c, {12, "", "", ""}));
}

TEST_F(ApplicationTest, ANestedEditorsEntryLandsInItsRowBeforeTheFormCloses) {
  launchApp();
  const Context& c = app->context();
  FieldEditor day(c, "День", {detailRow(c, 30, "Давление", "pressure")}, {});
  day.change("pressure",
             Value(R"([{"time":"12:00","pressure1":"120","pressure2":"80","comment":""}])"));

  const std::string old = sourceOf(day, "pressure");
  EXPECT_FALSE(
      day.openNested("nothing", 30, -1, *entryForm(c, "pressure", old, -1, c.clock().now())));
  ASSERT_TRUE(
      day.openNested("pressure", 30, -1, *entryForm(c, "pressure", old, -1, c.clock().now())));
  FieldEditor* sub = day.nested();
  ASSERT_TRUE(sub);
  sub->change("time", Value("08:30"));
  sub->change("pressure1", Value("110"));
  auto refused = day.commitNested();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->text, "Поле 'Нижнее давление' не заполнено!");
  ASSERT_TRUE(day.nested()) << "a refused entry keeps its editor open";
  day.nested()->change("pressure2", Value("70"));
  EXPECT_FALSE(day.commitNested());
  EXPECT_FALSE(day.nested());
  const auto list = Value::fromJson(sourceOf(day, "pressure"));
  ASSERT_TRUE(list && list->asList());
  ASSERT_EQ(list->asList()->size(), 2u);
  EXPECT_EQ((*list->asList())[0]["time"].text(), "08:30") << "entries kept in time order";
  EXPECT_EQ((*list->asList())[0]["pressure2"].text(), "70");

  auto second = entryForm(c, "pressure", sourceOf(day, "pressure"), 1, c.clock().now());
  ASSERT_TRUE(second);
  EXPECT_EQ(sourceOf(*second, "pressure1"), "120") << "an entry opens on its own values";
  EXPECT_FALSE(entryForm(c, "pressure", sourceOf(day, "pressure"), 2, c.clock().now()));
  EXPECT_FALSE(entryForm(c, "pressure", "not json", 0, c.clock().now()));
  EXPECT_FALSE(entryForm(c, "weight", "", -1, c.clock().now()));
}

TEST_F(ApplicationTest, ADaysMeasurementsAreAddedThroughTheirEditor) {
  launchApp();
  const std::string gid = "00000000-0000-0000-0001-000000000001";
  const Date today = clock->now();
  const DetailForm form{4, "Температура", "Укажите температуру", ""};
  auto stored = [&] { return dayValue("temp", gid, today); };

  auto first = DayFieldEdit::open(*app, gid, today, "temp", form);
  ASSERT_TRUE(first);
  first->editor().change("temp", Value(37.2));
  first->editor().change("time", Value(""));
  ASSERT_TRUE(first->commit()) << "a measurement without its time is refused";
  EXPECT_EQ(stored(), "") << "a refused editor stores nothing";
  first->editor().change("time", Value("10:00"));
  EXPECT_FALSE(first->commit());

  auto second = DayFieldEdit::open(*app, gid, today, "temp", form);
  second->editor().change("time", Value("08:00"));
  EXPECT_FALSE(second->commit());
  const auto list = Value::fromJson(stored());
  ASSERT_TRUE(list && list->asList());
  ASSERT_EQ(list->asList()->size(), 2u) << stored();
  EXPECT_EQ(nth(*list, 0)["temp"].text(), "36.6") << "the day's default, earlier, comes first";
  EXPECT_EQ(nth(*list, 1)["temp"].text(), "37.2");
  EXPECT_FALSE(DayFieldEdit::open(*app, gid, today, "temp", {12, "", "", ""}));
}

}  // namespace
}  // namespace lad::shell
