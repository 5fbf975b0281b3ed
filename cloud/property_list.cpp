#include "cloud/property_list.h"

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>

#include "cloud/property_list_shape.h"

namespace lad::cloud {

namespace {

// Property list dates count from 2001-01-01 00:00 UTC.
constexpr std::int64_t kEpochOffsetMs = 978'307'200'000;

struct NodeFree {
  void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeFree>;

struct MallocFree {
  void operator()(void* p) const { std::free(p); }
};
template <class T>
using Owned = std::unique_ptr<T, MallocFree>;

plist_t newDate(Date d) {
  const std::int64_t ms = d.time_since_epoch().count() - kEpochOffsetMs;
  std::int64_t sec = ms / 1000, rest = ms % 1000;
  if (rest < 0) {
    sec -= 1;
    rest += 1000;
  }
  constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();
  if (sec < kLow || sec > kHigh)
    return plist_new_date(static_cast<std::int32_t>(sec < kLow ? kLow : kHigh), 0);
  return plist_new_date(static_cast<std::int32_t>(sec), static_cast<std::int32_t>(rest * 1000));
}

plist_t toNode(const Value& value);

plist_t newArray(const List& list) {
  plist_t array = plist_new_array();
  for (const Value& item : list)
    if (!item.isNull()) plist_array_append_item(array, toNode(item));
  return array;
}

plist_t newDict(const Map& map) {
  plist_t dict = plist_new_dict();
  for (const auto& [key, item] : map)
    if (!item.isNull()) plist_dict_set_item(dict, key.c_str(), toNode(item));
  return dict;
}

plist_t toNode(const Value& value) {
  switch (value.type()) {
    case Value::Type::Null:
      return plist_new_dict();
    case Value::Type::Bool:
      return plist_new_bool(value.boolValue());
    case Value::Type::Integer:
      // Binary lists keep an integer in two's complement: a negative one reads back as itself.
      return plist_new_uint(static_cast<std::uint64_t>(value.intValue()));
    case Value::Type::Double:
      return plist_new_real(value.doubleValue());
    case Value::Type::Text:
      return plist_new_string(value.asText()->c_str());
    case Value::Type::Date:
      return newDate(*value.asDate());
    case Value::Type::Bytes:
      return plist_new_data(reinterpret_cast<const char*>(value.asBytes()->data()),
                            value.asBytes()->size());
    case Value::Type::List:
      return newArray(*value.asList());
    case Value::Type::Map:
      return newDict(*value.asMap());
  }
  return plist_new_dict();
}

std::optional<Value> fromNode(plist_t node, std::string* error);

bool fail(std::string* error, std::string reason) {
  if (error) *error = std::move(reason);
  return false;
}

std::optional<Value> listFrom(plist_t node, std::string* error) {
  List list;
  const std::uint32_t size = plist_array_get_size(node);
  for (std::uint32_t i = 0; i < size; ++i) {
    auto item = fromNode(plist_array_get_item(node, i), error);
    if (!item) return std::nullopt;
    list.push_back(std::move(*item));
  }
  return Value(std::move(list));
}

std::optional<Value> mapFrom(plist_t node, std::string* error) {
  Map map;
  plist_dict_iter raw = nullptr;
  plist_dict_new_iter(node, &raw);
  const Owned<void> iter(raw);
  for (;;) {
    char* rawKey = nullptr;
    plist_t item = nullptr;
    plist_dict_next_item(node, raw, &rawKey, &item);
    const Owned<char> key(rawKey);
    if (!item) return Value(std::move(map));
    auto value = fromNode(item, error);
    if (!value) return std::nullopt;
    map.set(key ? key.get() : "", std::move(*value));
  }
}

Value dateFrom(plist_t node) {
  std::int32_t sec = 0, usec = 0;
  plist_get_date_val(node, &sec, &usec);
  // The library gives the fraction of a second without its sign: before 2001 it counts back.
  const std::int64_t fraction = sec < 0 ? -(usec / 1000) : usec / 1000;
  const std::int64_t ms = std::int64_t{sec} * 1000 + fraction + kEpochOffsetMs;
  return Value(Date(std::chrono::milliseconds(ms)));
}

Value textFrom(plist_t node) {
  char* raw = nullptr;
  plist_get_string_val(node, &raw);
  const Owned<char> text(raw);
  return Value(std::string(text ? text.get() : ""));
}

Value bytesFrom(plist_t node) {
  char* raw = nullptr;
  std::uint64_t length = 0;
  plist_get_data_val(node, &raw, &length);
  const Owned<char> data(raw);
  const auto* first = reinterpret_cast<const std::uint8_t*>(data.get());
  return Value(data ? Bytes(first, first + length) : Bytes{});
}

Value scalarFrom(plist_t node, plist_type type) {
  if (type == PLIST_BOOLEAN) {
    std::uint8_t b = 0;
    plist_get_bool_val(node, &b);
    return Value(b != 0);
  }
  if (type == PLIST_UINT) {
    std::uint64_t u = 0;
    plist_get_uint_val(node, &u);
    return Value(static_cast<std::int64_t>(u));
  }
  double d = 0;
  plist_get_real_val(node, &d);
  return Value(d);
}

std::optional<Value> fromNode(plist_t node, std::string* error) {
  const plist_type type = plist_get_node_type(node);
  switch (type) {
    case PLIST_BOOLEAN:
    case PLIST_UINT:
    case PLIST_REAL:
      return scalarFrom(node, type);
    case PLIST_STRING:
      return textFrom(node);
    case PLIST_DATE:
      return dateFrom(node);
    case PLIST_DATA:
      return bytesFrom(node);
    case PLIST_ARRAY:
      return listFrom(node, error);
    case PLIST_DICT:
      return mapFrom(node, error);
    default:
      fail(error, "the property list holds a node that is no value");
      return std::nullopt;
  }
}

}  // namespace

Bytes toPropertyList(const Value& value) {
  const Node root(toNode(value));
  char* raw = nullptr;
  std::uint32_t length = 0;
  plist_to_bin(root.get(), &raw, &length);
  const std::unique_ptr<char, void (*)(char*)> out(raw, plist_to_bin_free);
  const auto* first = reinterpret_cast<const std::uint8_t*>(out.get());
  return out ? Bytes(first, first + length) : Bytes{};
}

std::optional<Value> fromPropertyList(std::span<const std::uint8_t> bytes, std::string* error) {
  const char* data = reinterpret_cast<const char*>(bytes.data());
  if (bytes.size() > std::numeric_limits<std::uint32_t>::max() ||
      !plist_is_binary(data, static_cast<std::uint32_t>(bytes.size()))) {
    fail(error, "not a binary property list");
    return std::nullopt;
  }
  if (!propertyListWithin(bytes, {}, error)) return std::nullopt;
  plist_t raw = nullptr;
  plist_from_bin(data, static_cast<std::uint32_t>(bytes.size()), &raw);
  const Node root(raw);
  if (!root) {
    fail(error, "a binary property list that is cut short or malformed");
    return std::nullopt;
  }
  return fromNode(root.get(), error);
}

}  // namespace lad::cloud
