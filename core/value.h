// A dynamically typed value: the dictionaries and lists that the diary passes around, with the
// number and text coercions that stored values have always been read with.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lad {

using Date = std::chrono::sys_time<std::chrono::milliseconds>;
using Bytes = std::vector<std::uint8_t>;
class Value;
class Map;
using List = std::vector<Value>;

// Deep-copying owner, so that a Value can hold lists and maps of Values.
template <class T>
class Box {
 public:
  Box() : p_(std::make_unique<T>()) {}
  Box(T v) : p_(std::make_unique<T>(std::move(v))) {}
  Box(const Box& o) : p_(std::make_unique<T>(*o.p_)) {}
  Box(Box&&) noexcept = default;
  Box& operator=(const Box& o) {
    p_ = std::make_unique<T>(*o.p_);
    return *this;
  }
  Box& operator=(Box&&) noexcept = default;
  T& operator*() const { return *p_; }
  T* operator->() const { return p_.get(); }
  friend bool operator==(const Box& a, const Box& b) { return *a.p_ == *b.p_; }

 private:
  std::unique_ptr<T> p_;
};

class Value {
 public:
  enum class Type { Null, Bool, Integer, Double, Text, Date, Bytes, List, Map };

  Value();
  Value(std::nullptr_t);
  Value(bool b);
  Value(int i);
  Value(std::int64_t i);
  Value(double d);
  Value(const char* s);
  Value(std::string s);
  Value(std::string_view s);
  Value(Date d);
  Value(Bytes b);
  Value(List l);
  Value(Map m);
  Value(const Value&);
  Value(Value&&) noexcept;
  Value& operator=(const Value&);
  Value& operator=(Value&&) noexcept;
  ~Value();

  Type type() const;
  bool isNull() const { return type() == Type::Null; }

  // Coercions: a leading number of a text counts ("3 шт." reads as 3), "." is the only decimal
  // point whatever the locale, and what has no number in it reads as 0 / false / "".
  std::int64_t intValue() const;
  double doubleValue() const;
  bool boolValue() const;
  std::string text() const;

  const std::string* asText() const;
  std::optional<Date> asDate() const;
  const Bytes* asBytes() const;
  const List* asList() const;
  List* asList();
  const Map* asMap() const;
  Map* asMap();

  // Member of a map; null when this is not a map or the key is absent.
  const Value& operator[](std::string_view key) const;

  // JSON: dates travel as {"$date": "<ISO-8601 UTC>"}, bytes as {"$bytes": "<base64>"}.
  static std::optional<Value> fromJson(std::string_view json, std::string* error = nullptr);
  std::string toJson(int indent = -1) const;
  nlohmann::ordered_json toJsonTree() const;

  bool operator==(const Value& o) const;

 private:
  std::variant<std::monostate, bool, std::int64_t, double, std::string, Date, Bytes, Box<List>,
               Box<Map>>
      v_;
};

// String-keyed map that keeps insertion order.
class Map {
 public:
  using Entry = std::pair<std::string, Value>;

  const Value* find(std::string_view key) const;
  Value* find(std::string_view key);
  bool contains(std::string_view key) const { return find(key) != nullptr; }
  // The value of the key; null when it is absent.
  const Value& operator[](std::string_view key) const;
  // Replaces the value of an existing key in place, or appends a new key.
  void set(std::string_view key, Value v);
  bool erase(std::string_view key);
  std::size_t size() const { return entries_.size(); }
  bool empty() const { return entries_.empty(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }
  bool operator==(const Map& o) const { return entries_ == o.entries_; }

 private:
  std::vector<Entry> entries_;
};

// Leading-number readers behind the coercions; exposed for the codecs that parse stored texts.
std::int64_t leadingInteger(std::string_view s);
double leadingDouble(std::string_view s);
bool leadingBool(std::string_view s);
std::string formatDouble(double d);

std::string dateToIso(Date d);
std::optional<Date> dateFromIso(std::string_view s);

}  // namespace lad
