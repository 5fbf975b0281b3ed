// Fuzz target of what a security key and the browser hand over: the CBOR reader, COSE public
// keys, and the registration and assertion ceremonies. The first byte chooses the parser; the
// rest is split into fields (fuzz_input.h). Each refusal must say why, and nothing is accepted
// that the next step could not use.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/fuzz_input.h"
#include "platform/cbor_reader.h"
#include "platform/cose_key.h"
#include "platform/webauthn_verify.h"

namespace {

using lad::fuzz::check;
using lad::fuzz::FuzzInput;
namespace platform = lad::platform;

// The ceremony the seeds were made for.
const platform::WebAuthnExpected kExpected{"fuzz-challenge-1", "localhost", "localhost:8080"};

std::size_t depthOf(const platform::CborItem& item) {
  std::size_t depth = 0;
  for (const auto& inner : item.items) depth = std::max(depth, depthOf(inner));
  return depth + 1;
}

// The reader yields an item or a reason, takes no more bytes than it has, and reads the same
// item from exactly the bytes it took.
void cbor(std::string_view bytes) {
  const platform::CborRead read = platform::readCbor(bytes);
  check(read.item.has_value() != !read.error.empty());
  if (!read.item) return;
  check(read.used > 0 && read.used <= bytes.size());
  check(depthOf(*read.item) <= read.used);
  if (read.item->kind == platform::CborItem::Kind::Map) check(read.item->items.size() % 2 == 0);
  const platform::CborRead again = platform::readCbor(bytes.substr(0, read.used));
  check(again.item && again.used == read.used);
}

// A key that is refused verifies nothing.
void coseKey(FuzzInput& in) {
  const std::string_view key = in.field(), message = in.field(), signature = in.rest();
  if (!platform::coseKeyProblem(key).empty()) check(!platform::coseVerify(key, message, signature));
}

// A registered credential has an id and a key that signatures can be checked with.
void registration(FuzzInput& in) {
  const std::string_view attestation = in.field(), clientData = in.rest();
  const platform::WebAuthnRegistration r =
      platform::readRegistration(attestation, clientData, kExpected);
  check(r.credential.has_value() != !r.error.empty());
  if (!r.credential) return;
  check(!r.credential->id.empty());
  check(platform::coseKeyProblem(r.credential->publicKey).empty());
}

// An accepted assertion's counter has grown, or both are zero for a key that keeps none; the
// same bytes with the signature's last byte changed are refused.
void assertion(FuzzInput& in) {
  platform::WebAuthnCredential credential;
  credential.id = "credential-1";
  credential.publicKey = std::string(in.field());
  credential.signCount = static_cast<std::uint32_t>(in.byte());
  const std::string_view authenticatorData = in.field(), clientData = in.field();
  const std::string_view signature = in.rest();
  const platform::WebAuthnAssertion r =
      platform::verifyAssertion(credential, authenticatorData, clientData, signature, kExpected);
  check(r.signCount.has_value() != !r.error.empty());
  if (!r.signCount) return;
  check(*r.signCount > credential.signCount || (*r.signCount == 0 && credential.signCount == 0));
  check(!signature.empty());
  std::string changed(signature);
  changed.back() = static_cast<char>(changed.back() ^ 0x01);
  check(!platform::verifyAssertion(credential, authenticatorData, clientData, changed, kExpected)
             .signCount);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput in(data, size);
  switch (in.byte() % 4) {
    case 0:
      cbor(in.rest());
      break;
    case 1:
      coseKey(in);
      break;
    case 2:
      registration(in);
      break;
    default:
      assertion(in);
      break;
  }
  return 0;
}
