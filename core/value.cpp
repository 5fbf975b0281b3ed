#include "core/value.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/base64.h"

namespace lad {

namespace {

using Json = nlohmann::ordered_json;
constexpr int kMaxJsonDepth = 256;

const Value& nullValue() {
  static const Value v;
  return v;
}

std::size_t skipBlanks(std::string_view s) {
  std::size_t i = 0;
  while (i < s.size() && (s[i] == ' ' || s[i] == '\t' || s[i] == '\n' || s[i] == '\r')) ++i;
  return i;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t digitsFrom(std::string_view s, std::size_t i) {
  while (i < s.size() && isDigit(s[i])) ++i;
  return i;
}

std::optional<Value> taggedFromJson(const Json& j, std::string* error) {
  const auto first = j.begin();
  const std::string& key = first.key();
  const Json& inner = first.value();
  if (!inner.is_string()) return std::nullopt;
  const auto& s = inner.get_ref<const std::string&>();
  if (key == "$date") {
    if (auto d = dateFromIso(s)) return Value(*d);
  } else if (key == "$bytes") {
    if (auto b = base64Decode(s)) return Value(std::move(*b));
  } else {
    return std::nullopt;
  }
  if (error) *error = "bad " + key + " value: " + s;
  return Value();
}

std::optional<Value> fromTree(const Json& j, int depth, std::string* error) {
  if (depth > kMaxJsonDepth) {
    if (error) *error = "JSON nested too deeply";
    return std::nullopt;
  }
  switch (j.type()) {
    case Json::value_t::null:
    case Json::value_t::discarded:
      return Value();
    case Json::value_t::boolean:
      return Value(j.get<bool>());
    case Json::value_t::number_integer:
      return Value(j.get<std::int64_t>());
    case Json::value_t::number_unsigned: {
      auto u = j.get<std::uint64_t>();
      if (u <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        return Value(static_cast<std::int64_t>(u));
      return Value(static_cast<double>(u));
    }
    case Json::value_t::number_float:
      return Value(j.get<double>());
    case Json::value_t::string:
      return Value(j.get<std::string>());
    case Json::value_t::binary:
      return Value(Bytes(j.get_binary().begin(), j.get_binary().end()));
    case Json::value_t::array: {
      List list;
      list.reserve(j.size());
      for (const auto& item : j) {
        auto v = fromTree(item, depth + 1, error);
        if (!v) return std::nullopt;
        list.push_back(std::move(*v));
      }
      return Value(std::move(list));
    }
    case Json::value_t::object: {
      if (j.size() == 1) {
        std::string tagError;
        if (auto tagged = taggedFromJson(j, &tagError)) {
          if (!tagError.empty()) {
            if (error) *error = tagError;
            return std::nullopt;
          }
          return tagged;
        }
      }
      Map map;
      for (const auto& [k, item] : j.items()) {
        auto v = fromTree(item, depth + 1, error);
        if (!v) return std::nullopt;
        map.set(k, std::move(*v));
      }
      return Value(std::move(map));
    }
  }
  return Value();
}

}  // namespace

Value::Value() = default;
Value::Value(std::nullptr_t) {}
Value::Value(bool b) : v_(b) {}
Value::Value(int i) : v_(static_cast<std::int64_t>(i)) {}
Value::Value(std::int64_t i) : v_(i) {}
Value::Value(double d) : v_(d) {}
Value::Value(const char* s) : v_(std::string(s)) {}
Value::Value(std::string s) : v_(std::move(s)) {}
Value::Value(std::string_view s) : v_(std::string(s)) {}
Value::Value(Date d) : v_(d) {}
Value::Value(Bytes b) : v_(std::move(b)) {}
Value::Value(List l) : v_(Box<List>(std::move(l))) {}
Value::Value(Map m) : v_(Box<Map>(std::move(m))) {}
Value::Value(const Value&) = default;
Value::Value(Value&&) noexcept = default;
Value& Value::operator=(const Value&) = default;
Value& Value::operator=(Value&&) noexcept = default;
Value::~Value() = default;

Value::Type Value::type() const {
  return static_cast<Type>(v_.index());
}

std::int64_t Value::intValue() const {
  switch (type()) {
    case Type::Bool:
      return std::get<bool>(v_) ? 1 : 0;
    case Type::Integer:
      return std::get<std::int64_t>(v_);
    case Type::Double: {
      double d = std::get<double>(v_);
      if (std::isnan(d)) return 0;
      if (d >= 9.2e18) return std::numeric_limits<std::int64_t>::max();
      if (d <= -9.2e18) return std::numeric_limits<std::int64_t>::min();
      return static_cast<std::int64_t>(d);
    }
    case Type::Text:
      return leadingInteger(std::get<std::string>(v_));
    default:
      return 0;
  }
}

double Value::doubleValue() const {
  switch (type()) {
    case Type::Bool:
      return std::get<bool>(v_) ? 1.0 : 0.0;
    case Type::Integer:
      return static_cast<double>(std::get<std::int64_t>(v_));
    case Type::Double:
      return std::get<double>(v_);
    case Type::Text:
      return leadingDouble(std::get<std::string>(v_));
    default:
      return 0.0;
  }
}

bool Value::boolValue() const {
  switch (type()) {
    case Type::Bool:
      return std::get<bool>(v_);
    case Type::Integer:
      return std::get<std::int64_t>(v_) != 0;
    case Type::Double:
      return std::get<double>(v_) != 0.0;
    case Type::Text:
      return leadingBool(std::get<std::string>(v_));
    default:
      return false;
  }
}

std::string Value::text() const {
  switch (type()) {
    case Type::Bool:
      return std::get<bool>(v_) ? "1" : "0";
    case Type::Integer:
      return std::to_string(std::get<std::int64_t>(v_));
    case Type::Double:
      return formatDouble(std::get<double>(v_));
    case Type::Text:
      return std::get<std::string>(v_);
    default:
      return {};
  }
}

const std::string* Value::asText() const {
  return std::get_if<std::string>(&v_);
}

std::optional<Date> Value::asDate() const {
  if (auto d = std::get_if<Date>(&v_)) return *d;
  return std::nullopt;
}

const Bytes* Value::asBytes() const {
  return std::get_if<Bytes>(&v_);
}

const List* Value::asList() const {
  auto b = std::get_if<Box<List>>(&v_);
  return b ? &**b : nullptr;
}

List* Value::asList() {
  auto b = std::get_if<Box<List>>(&v_);
  return b ? &**b : nullptr;
}

const Map* Value::asMap() const {
  auto b = std::get_if<Box<Map>>(&v_);
  return b ? &**b : nullptr;
}

Map* Value::asMap() {
  auto b = std::get_if<Box<Map>>(&v_);
  return b ? &**b : nullptr;
}

const Value& Value::operator[](std::string_view key) const {
  const Map* m = asMap();
  return m ? (*m)[key] : nullValue();
}

const Value& Map::operator[](std::string_view key) const {
  const Value* v = find(key);
  return v ? *v : nullValue();
}

bool Value::operator==(const Value& o) const {
  return v_ == o.v_;
}

nlohmann::ordered_json Value::toJsonTree() const {
  switch (type()) {
    case Type::Null:
      return nullptr;
    case Type::Bool:
      return std::get<bool>(v_);
    case Type::Integer:
      return std::get<std::int64_t>(v_);
    case Type::Double: {
      double d = std::get<double>(v_);
      return std::isfinite(d) ? Json(d) : Json(nullptr);
    }
    case Type::Text:
      return std::get<std::string>(v_);
    case Type::Date:
      return Json{{"$date", dateToIso(std::get<Date>(v_))}};
    case Type::Bytes:
      return Json{{"$bytes", base64Encode(std::get<Bytes>(v_))}};
    case Type::List: {
      Json arr = Json::array();
      for (const auto& item : *asList()) arr.push_back(item.toJsonTree());
      return arr;
    }
    case Type::Map: {
      Json obj = Json::object();
      for (const auto& [k, item] : *asMap()) obj[k] = item.toJsonTree();
      return obj;
    }
  }
  return nullptr;
}

std::string Value::toJson(int indent) const {
  return toJsonTree().dump(indent, ' ', false, Json::error_handler_t::replace);
}

std::optional<Value> Value::fromJson(std::string_view json, std::string* error) {
  try {
    return fromTree(Json::parse(json), 0, error);
  } catch (const Json::exception& e) {
    if (error) *error = e.what();
    return std::nullopt;
  }
}

const Value* Map::find(std::string_view key) const {
  for (const auto& e : entries_)
    if (e.first == key) return &e.second;
  return nullptr;
}

Value* Map::find(std::string_view key) {
  return const_cast<Value*>(static_cast<const Map*>(this)->find(key));
}

void Map::set(std::string_view key, Value v) {
  if (Value* existing = find(key)) {
    *existing = std::move(v);
    return;
  }
  entries_.emplace_back(std::string(key), std::move(v));
}

bool Map::erase(std::string_view key) {
  for (auto it = entries_.begin(); it != entries_.end(); ++it) {
    if (it->first == key) {
      entries_.erase(it);
      return true;
    }
  }
  return false;
}

std::int64_t leadingInteger(std::string_view s) {
  std::size_t i = skipBlanks(s);
  bool negative = i < s.size() && s[i] == '-';
  if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
  // A 32-bit int clamped to its range, as the platform reads it: callers may then add to it or
  // subtract from it in 64 bits without overflow.
  constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
  constexpr std::int64_t kMin = std::numeric_limits<std::int32_t>::min();
  std::int64_t n = 0;
  for (; i < s.size() && isDigit(s[i]); ++i) {
    n = n * 10 + (s[i] - '0');
    if (n > kMax + 1) break;  // past the range of either sign: more digits change nothing
  }
  n = negative ? -n : n;
  return n > kMax ? kMax : n < kMin ? kMin : n;
}

double leadingDouble(std::string_view s) {
  std::size_t start = skipBlanks(s);
  std::size_t i = start;
  if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
  std::size_t intEnd = digitsFrom(s, i);
  std::size_t end = intEnd;
  if (end < s.size() && s[end] == '.') end = digitsFrom(s, end + 1);
  if (end == i || (end == i + 1 && intEnd == i)) return 0.0;  // no digit at all
  if (end < s.size() && (s[end] == 'e' || s[end] == 'E')) {
    std::size_t e = end + 1;
    if (e < s.size() && (s[e] == '-' || s[e] == '+')) ++e;
    std::size_t expEnd = digitsFrom(s, e);
    if (expEnd > e) end = expEnd;
  }
  std::size_t from = s[start] == '+' ? start + 1 : start;
  double d = 0.0;
  auto res = std::from_chars(s.data() + from, s.data() + end, d);
  if (res.ec == std::errc::result_out_of_range) {
    return s[start] == '-' ? -std::numeric_limits<double>::infinity()
                           : std::numeric_limits<double>::infinity();
  }
  return d;
}

bool leadingBool(std::string_view s) {
  std::size_t i = skipBlanks(s);
  if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
  while (i < s.size() && s[i] == '0') ++i;
  if (i >= s.size()) return false;
  char c = s[i];
  return c == 'Y' || c == 'y' || c == 'T' || c == 't' || (c >= '1' && c <= '9');
}

std::string formatDouble(double d) {
  char buf[32];
  auto res = std::to_chars(buf, buf + sizeof buf, d);
  return std::string(buf, res.ptr);
}

std::string dateToIso(Date d) {
  using namespace std::chrono;
  auto day = floor<days>(d);
  year_month_day ymd{day};
  hh_mm_ss<milliseconds> t{d - day};
  char buf[40];
  std::snprintf(buf, sizeof buf, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", int(ymd.year()),
                unsigned(ymd.month()), unsigned(ymd.day()), int(t.hours().count()),
                int(t.minutes().count()), int(t.seconds().count()), int(t.subseconds().count()));
  return buf;
}

std::optional<Date> dateFromIso(std::string_view s) {
  using namespace std::chrono;
  // Fixed "yyyy-MM-ddTHH:mm:ss", an optional fraction, and "Z".
  auto number = [&](std::size_t at, std::size_t len) -> int {
    if (at + len > s.size()) return -1;
    int n = 0;
    for (std::size_t i = at; i < at + len; ++i) {
      if (!isDigit(s[i])) return -1;
      n = n * 10 + (s[i] - '0');
    }
    return n;
  };
  if (s.size() < 20 || s[4] != '-' || s[7] != '-' || s[10] != 'T' || s[13] != ':' || s[16] != ':')
    return std::nullopt;
  const int y = number(0, 4), mo = number(5, 2), da = number(8, 2);
  const int h = number(11, 2), mi = number(14, 2), se = number(17, 2);
  if (y < 0 || mo < 0 || da < 0 || h < 0 || h > 23 || mi < 0 || mi > 59 || se < 0 || se > 59)
    return std::nullopt;
  std::size_t i = 19;
  int ms = 0;
  if (s[i] == '.') {
    const std::size_t end = digitsFrom(s, i + 1);
    if (end == i + 1) return std::nullopt;
    for (std::size_t k = i + 1; k < i + 4; ++k) ms = ms * 10 + (k < end ? s[k] - '0' : 0);
    i = end;
  }
  if (i + 1 != s.size() || s[i] != 'Z') return std::nullopt;
  const year_month_day ymd{year(y), month(unsigned(mo)), day(unsigned(da))};
  if (!ymd.ok()) return std::nullopt;
  return sys_days(ymd) + hours(h) + minutes(mi) + seconds(se) + milliseconds(ms);
}

}  // namespace lad
