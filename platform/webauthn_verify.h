// Checks of the two browser ceremonies that bind a platform authenticator to this server:
// registration (a new public key) and assertion (a signature proving the key is present).
// All byte arguments are raw bytes, already decoded from the browser's base64url.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lad::platform {

// A registered key: its id, its COSE public key and the last signature counter seen.
struct WebAuthnCredential {
  std::string id;
  std::string publicKey;
  std::uint32_t signCount = 0;
};

// What the server asked for and where it is reached.
struct WebAuthnExpected {
  std::string challenge;  // the one-time challenge sent to the browser
  std::string rpId;       // the host name the key is bound to
  std::string host;       // the host as the browser named it, with the port if any
};

struct WebAuthnRegistration {
  std::optional<WebAuthnCredential> credential;  // empty: `error` says why
  std::string error;
};

struct WebAuthnAssertion {
  std::optional<std::uint32_t> signCount;  // the new counter; empty: `error` says why
  std::string error;
};

// A registration with "none" attestation; the user must have been present and verified.
WebAuthnRegistration readRegistration(std::string_view attestationObject,
                                      std::string_view clientDataJSON,
                                      const WebAuthnExpected& expected);

// An assertion by `credential`: client data, relying party, flags, signature and counter.
WebAuthnAssertion verifyAssertion(const WebAuthnCredential& credential,
                                  std::string_view authenticatorData,
                                  std::string_view clientDataJSON, std::string_view signature,
                                  const WebAuthnExpected& expected);

}  // namespace lad::platform
