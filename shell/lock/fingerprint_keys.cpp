#include "shell/lock/fingerprint_keys.h"

#include <optional>

#include "core/base64.h"

namespace lad::shell {

namespace {

constexpr std::string_view kSettingsKey = "fingerprintKeys";

std::optional<FingerprintKeyRecord> fromValue(const Value& v) {
  const auto id = base64UrlDecodeString(v["id"].text());
  const auto key = base64UrlDecodeString(v["key"].text());
  const std::string* rpId = v["rpId"].asText();
  const std::int64_t count = v["count"].intValue();
  if (!id || id->empty() || !key || !rpId || count < 0 || count > UINT32_MAX) return std::nullopt;
  return FingerprintKeyRecord{{*id, *key, static_cast<std::uint32_t>(count)}, *rpId};
}

Value toValue(const FingerprintKeyRecord& k) {
  Map m;
  m.set("id", base64UrlEncode(k.credential.id));
  m.set("key", base64UrlEncode(k.credential.publicKey));
  m.set("count", static_cast<std::int64_t>(k.credential.signCount));
  m.set("rpId", k.rpId);
  return Value(std::move(m));
}

List storedList(const SettingsStore& settings) {
  const Value stored = settings.get(kSettingsKey);
  return stored.asList() ? *stored.asList() : List{};
}

}  // namespace

std::vector<FingerprintKeyRecord> fingerprintKeysFor(const SettingsStore& settings,
                                                     std::string_view rpId) {
  std::vector<FingerprintKeyRecord> keys;
  for (const Value& v : storedList(settings))
    if (auto key = fromValue(v); key && key->rpId == rpId) keys.push_back(std::move(*key));
  return keys;
}

void keepFingerprintKey(SettingsStore& settings, const FingerprintKeyRecord& key) {
  List kept;
  for (Value& v : storedList(settings)) {
    const auto old = fromValue(v);
    if (!old || old->credential.id != key.credential.id || old->rpId != key.rpId)
      kept.push_back(std::move(v));
  }
  kept.push_back(toValue(key));
  settings.set(kSettingsKey, Value(std::move(kept)));
  settings.synchronize();
}

void forgetFingerprintKeys(SettingsStore& settings) {
  settings.remove(kSettingsKey);
}

}  // namespace lad::shell
