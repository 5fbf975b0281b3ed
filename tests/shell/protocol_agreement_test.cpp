// The screen protocol is declared twice: by the view structs of the screens and by the
// browser's renderer. Both declarations are read from the sources and must name the same node
// kinds and the same editor row kinds, so that a kind added on one side only fails here.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path kSource = LADANEYA_SOURCE_DIR;

std::string contentOf(const fs::path& file) {
  std::ifstream in(file);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

// Every first group of the pattern in the text.
std::set<std::string> matches(const std::string& text, const std::regex& pattern) {
  std::set<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it)
    found.insert((*it)[1]);
  return found;
}

// Names and numbers between the opening text and the next closing brace.
std::map<std::string, int> kindsIn(const std::string& text, const std::string& opening,
                                   const std::regex& entry) {
  const auto from = text.find(opening);
  EXPECT_NE(from, std::string::npos) << "no " << opening;
  if (from == std::string::npos) return {};
  const std::string block = text.substr(from, text.find('}', from) - from);
  std::map<std::string, int> kinds;
  for (std::sregex_iterator it(block.begin(), block.end(), entry), end; it != end; ++it)
    kinds[(*it)[1]] = std::stoi((*it)[2]);
  return kinds;
}

TEST(ProtocolAgreement, ScreensAndRendererNameTheSameNodeKinds) {
  std::string screens;
  for (const auto& entry : fs::recursive_directory_iterator(kSource / "shell"))
    if (entry.path().extension() == ".h") screens += contentOf(entry.path());
  const auto cpp = matches(screens, std::regex(R"re(kKind = "(\w+)")re"));
  const auto ts = matches(contentOf(kSource / "web/src/view.ts"), std::regex(R"(kind: '(\w+)')"));
  EXPECT_FALSE(cpp.empty());
  EXPECT_EQ(cpp, ts) << "a node kind is declared on one side only";
}

TEST(ProtocolAgreement, ScreensAndRendererNameTheSameEditorRowKinds) {
  const auto cpp = kindsIn(contentOf(kSource / "shell/views/editors.h"), "enum RowKind {",
                           std::regex(R"(k(\w+) = (\d+))"));
  std::map<std::string, int> lowered;
  for (const auto& [name, number] : cpp) {
    std::string renderer = name;
    renderer[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(renderer[0])));
    lowered[renderer] = number;
  }
  const auto ts = kindsIn(contentOf(kSource / "web/src/view.ts"), "export const RowKind = {",
                          std::regex(R"((\w+): (\d+))"));
  EXPECT_FALSE(lowered.empty());
  EXPECT_EQ(lowered, ts) << "an editor row kind differs between the two sides";
}

}  // namespace
