#include "store/values/value_conversion.h"

#include <gtest/gtest.h>

#include <string>

#include "core/ids.h"
#include "core/json_text.h"
#include "store/file_names.h"

namespace lad {
namespace {

struct ConversionCase {
  const char* keyword;
  std::string old;
  std::string expected;  // compact JSON, or the text itself for a value that is no JSON
};

// The JSON result read back and written compactly, so that cases need not spell the indentation.
std::string compact(const std::string& json) {
  return jsonIs(json) ? jsonToDictionary(json).toJson() : json;
}

Value food(const std::string& index, const std::string& cap) {
  Map m;
  m.set("index", index);
  m.set("cap", cap);
  return Value(std::move(m));
}

constexpr int kPregnancy = 1, kChild = 2;

const std::string kG2 = newID2(2, 2), kG3 = newID2(2, 3), kG5 = newID2(2, 5), kG17 = newID2(2, 17),
                  kG40 = newID2(2, 40);

TEST(ValueConversionTest, EachOldKeywordComesToItsCurrentForm) {
  const ConversionCase cases[] = {
      {"uzi", "50<tr>3200", R"({"rost":"50","ves":"3200"})"},
      {"birthresult", "52<tr>3500<tr>1<tr>10:30",
       R"({"rost":"52","ves":"3500","type":"1","time":"10:30"})"},
      {"biosize", "1<tr>2<tr>3<tr>4<tr>5",
       R"({"bio1":"1","bio2":"2","bio3":"3","bio4":"4","bio5":"5"})"},
      {"temp", "08:00<td>36.6", R"([{"time":"08:00","temp":"36.6"}])"},
      {"pressure", "09:00<table>120<table>80<table>утро",
       R"([{"time":"09:00","pressure1":"120","pressure2":"80","comment":"утро"}])"},
      {"zhid", "10:00<table>200<table>150<table><end>12:00<table>1<table>2<table>x",
       R"([{"time":"10:00","in":"200","out":"150","comment":""},)"
       R"({"time":"12:00","in":"1","out":"2","comment":"x"}])"},
      {"sleep", "22:00<table>06:00<table>08:00",
       R"([{"start":"22:00","end":"06:00","interval":"08:00"}])"},
      {"analizy", "1<br>5<br>a.jpg<br>t<tr>2<br>6<br>b.jpg<br>",
       R"([{"tp":"1","captiontype":"5","file":"a.jpg","tag":"t"},)"
       R"({"tp":"2","captiontype":"6","file":"b.jpg","tag":""}])"},
      {"changes", "2<tr>3", kG2 + "<tr>" + kG3},
      {"fillings", "5", kG5},
      {"bolezn", "", ""},
      {"kovalue", "1<tr>10<tr>15", R"({"tp":"1","tip":"Грудное молоко","left":"10","right":"15"})"},
      {"kovalue", "2<tr>5<tr>120",
       R"({"tp":"2","tip":")" + kG5 + R"(","volume":"120","measure":"мил."})"},
      {"kovalue", "7<tr>40<tr>2",
       R"({"tp":"7","tip":")" + kG40 + R"(","volume":"2","measure":"шт."})"},
      {"kovalue", "3<tr>Кефир<tr>100",
       R"({"tp":"3","tip":"Кефир","measure":"мил.","volume":"100"})"},
      {"kovalue", "4<tr>Каша<tr>50", R"({"tp":"4","tip":"Каша","measure":"г.","volume":"50"})"},
      {"weight", "3<tr>4", "3<tr>4"},
  };
  const List foods{food(kG40, "Пюре (шт.)<tr>12")};
  for (const ConversionCase& c : cases)
    EXPECT_EQ(compact(oldValueToJson(kPregnancy, c.keyword, c.old, &foods)), c.expected)
        << c.keyword << " " << c.old;
}

TEST(ValueConversionTest, PillsTakeGuidsAndPickerTextsAndTheKeyOfANinthField) {
  const std::string eight =
      "4<table>2<td>0<table>1<td>1<table>10<table>17<table>9<td>1"
      "<table>01.03.2026<table>08:00<td>20:00";
  const std::string expected = R"({"pillname":")" + newID2(2, 4) + R"(","pilldoza":"1/2<td>мл.",)" +
                               R"("pillinter":"2<td>раз в сутки","pillperiod":")" + newID2(2, 10) +
                               R"(","pilleat":")" + kG17 + R"(","pilllength":"10<td>недели",)" +
                               R"("pillsdate":"01.03.2026","pilltime":"08:00<td>20:00")";
  EXPECT_EQ(compact(oldValueToJson(kPregnancy, "pills", eight, nullptr)), "[" + expected + "}]");
  EXPECT_EQ(
      compact(oldValueToJson(kPregnancy, "pills", eight + "<table>K-1<end>" + eight, nullptr)),
      "[" + expected + R"(,"key":"K-1"},)" + expected + "}]");
}

// Rows in range are read against the old readers in the conversion reading tests.
TEST(ValueConversionTest, PickerRowsOutOfRangeOrIncompleteReadAsNothing) {
  EXPECT_EQ(oldList("pilllength", "100<td>3"), "<td>");
  EXPECT_EQ(oldList("pilldoza", "4"), "2<td>мл.");
  EXPECT_EQ(oldList("pilldoza", ""), "");
  EXPECT_EQ(oldList("pilltime", "08:00<td>20:00"), "08:00<td>20:00");
}

TEST(ValueConversionTest, ShortItemsAndUnknownKindsKeepWhatTheyHave) {
  EXPECT_EQ(oldValueToDic(kPregnancy, "uzi", "50", nullptr).toJson(), R"({"rost":"50","ves":""})");
  EXPECT_EQ(oldValueToDic(kPregnancy, "pills", "", nullptr).toJson(),
            R"({"pillname":"","pilldoza":"","pillinter":"","pillperiod":"","pilleat":"",)"
            R"("pilllength":"","pillsdate":"","pilltime":""})");
  EXPECT_EQ(oldValueToDic(kPregnancy, "kovalue", "9<tr>1", nullptr).toJson(), R"({"tp":"9"})");
  EXPECT_EQ(oldValueToDic(kPregnancy, "kovalue", "7<tr>40<tr>1", nullptr)["measure"].text(),
            "мил.");
  EXPECT_EQ(oldValueToDic(kPregnancy, "weight", "3", nullptr).toJson(), "{}");
}

TEST(ValueConversionTest, ChildAttachmentsTakeTheirCurrentNamesOnlyInTheChildDiary) {
  const std::string old = "1<br>5<br>a-12-1.jpg<br>t<tr>2<br>6<br>notes.txt<br>";
  EXPECT_EQ(compact(oldValueToJson(kChild, "analizy", old, nullptr)),
            R"([{"tp":"1","captiontype":"5","file":"a-)" + newID2(1, 12) +
                R"(-1.jpg","tag":"t"},{"tp":"2","captiontype":"6","file":"notes.txt","tag":""}])");
  EXPECT_EQ(oldValueToDic(kChild, "documents", "3<br>7<br>4-scan.PDF", nullptr)["file"].text(),
            newID2(1, 4) + "-scan.PDF");
  EXPECT_EQ(oldValueToDic(kPregnancy, "documents", "3<br>7<br>4-scan.pdf", nullptr)["file"].text(),
            "4-scan.pdf");
}

TEST(ValueConversionTest, OnlyOldNumberedFileNamesTakeTheChildGuid) {
  const std::string g12 = newID2(1, 12), current = "a-" + g12 + "-1.jpg";
  const std::pair<std::string, std::string> cases[] = {
      {"d-12-3.PDF", "d-" + g12 + "-3.PDF"},
      {"12-photo.Jpg", g12 + "-photo.Jpg"},
      {"12.jpg", g12 + "-.jpg"},
      {current, current},
      {"12-photo.png", "12-photo.png"},
      {"a-x.jpg", "a-x.jpg"},
      {"12", "12"},
      {"", ""},
      {"1234567890123456789-x.jpg", "1234567890123456789-x.jpg"},
  };
  for (const auto& [old, expected] : cases) EXPECT_EQ(oldFileNameToNew(old), expected) << old;
}

}  // namespace
}  // namespace lad
