// A software authenticator for tests: makes a real key pair and answers the browser ceremonies
// the way a phone's platform authenticator does, so that every part can be altered on purpose.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lad::testing {

struct MadeRegistration {
  std::string attestationObject;
  std::string clientDataJSON;
};

struct MadeAssertion {
  std::string authenticatorData;
  std::string clientDataJSON;
  std::string signature;
};

// Where a ceremony is run and what it answers.
struct Ceremony {
  std::string challenge;  // raw bytes
  std::string rpId = "localhost";
  std::string origin = "http://localhost:8080";
  std::uint8_t flags = 0x05;  // user present and verified
  std::uint32_t signCount = 0;
};

class TestAuthenticator {
 public:
  enum class Algorithm { Es256, Rs256 };
  explicit TestAuthenticator(std::string credentialId = "credential-1",
                             Algorithm algorithm = Algorithm::Es256);
  ~TestAuthenticator();

  const std::string& credentialId() const { return id_; }
  // The public key as COSE CBOR.
  std::string coseKey() const;
  // A "none" attestation of the key, with the attested-data flag added to the ceremony's flags.
  MadeRegistration registration(const Ceremony& c) const;
  MadeAssertion assertion(const Ceremony& c) const;
  // A signature over `message` with SHA-256, as the key's algorithm makes it.
  std::string sign(std::string_view message) const;

  static std::string clientData(std::string_view type, const Ceremony& c);

 private:
  struct Key;
  std::string id_;
  Algorithm algorithm_;
  std::unique_ptr<Key> key_;
};

}  // namespace lad::testing
