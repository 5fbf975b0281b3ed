// The fingerprint keys registered with this installation, kept in its settings under one key.
// Only public material is kept: the key's id, its public key, its signature counter and the
// host it was registered on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "platform/webauthn_verify.h"

namespace lad::shell {

struct FingerprintKeyRecord {
  platform::WebAuthnCredential credential;
  std::string rpId;
};

// The keys registered on `rpId`; entries that cannot be read are skipped.
std::vector<FingerprintKeyRecord> fingerprintKeysFor(const SettingsStore& settings,
                                                     std::string_view rpId);
// Adds the key, or replaces the one with the same id and host, and synchronises.
void keepFingerprintKey(SettingsStore& settings, const FingerprintKeyRecord& key);
// Forgets every key, for when the lock is turned off; synchronised by the caller.
void forgetFingerprintKeys(SettingsStore& settings);

}  // namespace lad::shell
