#include "cloud/change_check.h"

#include <initializer_list>

#include "cloud/change_images.h"
#include "core/context.h"

namespace lad::cloud {

namespace {

using T = Value::Type;

struct Rule {
  const char* key;
  std::initializer_list<T> types;
  bool required;
};

constexpr std::initializer_list<T> kNumber = {T::Integer, T::Double};
constexpr std::initializer_list<T> kText = {T::Text};

const std::initializer_list<Rule> kRecord = {{"tp", kNumber, true},
                                             {"field", kText, true},
                                             {"source", {T::Text, T::Integer, T::Double}, true}};
const std::initializer_list<Rule> kEntry = {{"index", kText, true},
                                            {"cap", kText, false},
                                            {"tp", kNumber, true},
                                            {"deleted", {T::Integer, T::Double, T::Bool}, false}};
const std::initializer_list<Rule> kFeeding = {{"kodates", kText, true},
                                              {"kotype", kNumber, true},
                                              {"kovalue", kText, true},
                                              {"kosum", kNumber, true}};
const std::initializer_list<Rule> kFile = {{"type", kText, true},
                                           {"name", kText, true},
                                           {"data", {T::Bytes}, true},
                                           {"names", kText, false}};

bool oneOf(T type, std::initializer_list<T> types) {
  for (T t : types)
    if (t == type) return true;
  return false;
}

std::string mapProblem(const Value& item, std::initializer_list<Rule> rules) {
  if (!item.asMap()) return "is not a dictionary";
  for (const Rule& rule : rules) {
    const Value* value = item.asMap()->find(rule.key);
    if (!value && rule.required) return std::string("has no \"") + rule.key + "\"";
    if (value && !oneOf(value->type(), rule.types))
      return std::string("has a \"") + rule.key + "\" of the wrong type";
  }
  return {};
}

std::string listProblem(const Map& root, const char* key, std::initializer_list<Rule> rules) {
  const Value* list = root.find(key);
  if (!list) return {};
  if (!list->asList()) return std::string("\"") + key + "\" is not a list";
  for (const Value& item : *list->asList()) {
    const std::string problem = mapProblem(item, rules);
    if (!problem.empty()) return std::string("an entry of \"") + key + "\" " + problem;
  }
  return {};
}

std::string fileNamesProblem(const Map& root) {
  const Value* images = root.find("images");
  if (!images) return {};
  for (const Value& image : *images->asList()) {
    const Value* small = image.asMap()->find("names");
    if (!isPlainFileName(image["name"].text()) || (small && !isPlainFileName(small->text())))
      return "an entry of \"images\" names a path, not a file";
  }
  return {};
}

// A profile's values are texts, numbers, booleans and dates, never lists, maps or data.
std::string setupProblem(const Map& root) {
  const Value* setup = root.find("setup");
  if (!setup) return {};
  if (!setup->asMap()) return "\"setup\" is not a dictionary";
  for (const auto& [key, value] : *setup->asMap())
    if (value.asList() || value.asMap() || value.asBytes())
      return "the value of \"" + key + "\" in \"setup\" is of the wrong type";
  return {};
}

std::string dayProblem(const Context& context, const Map& root) {
  if (!root.contains("data") && !root.contains("kormdata")) return {};
  const Value* day = root.find("date");
  if (!day || !day->asText() || !context.dates().dateFromString(*day->asText()))
    return "the day of the records is not a date as yyyy-MM-dd";
  return {};
}

}  // namespace

std::string changeProblem(const Context& context, const Value& root) {
  const Map* map = root.asMap();
  if (!map) return "the change file is not a dictionary";
  const Value& gid = (*map)["gid"];
  if (!gid.asText() || gid.asText()->empty()) return "the change file names no profile (\"gid\")";
  if (std::string problem = setupProblem(*map); !problem.empty()) return problem;
  for (const auto& [key, rules] : {std::pair{"data", kRecord}, std::pair{"const", kEntry},
                                   std::pair{"kormdata", kFeeding}, std::pair{"images", kFile}}) {
    std::string problem = listProblem(*map, key, rules);
    if (!problem.empty()) return problem;
  }
  std::string problem = fileNamesProblem(*map);
  return problem.empty() ? dayProblem(context, *map) : problem;
}

}  // namespace lad::cloud
