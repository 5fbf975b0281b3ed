#include "app/cli.h"

#include <cctype>
#include <charconv>
#include <cstdlib>
#include <limits>

#include "core/edition.h"

namespace lad::app {

namespace {

bool parseListen(const std::string& text, ServeOptions& o) {
  const auto colon = text.rfind(':');
  if (colon == std::string::npos || colon == 0) return false;
  std::string host = text.substr(0, colon);
  if (host.size() > 2 && host.front() == '[' && host.back() == ']')
    host = host.substr(1, host.size() - 2);
  int port = -1;
  const char* first = text.data() + colon + 1;
  const char* last = text.data() + text.size();
  auto [end, ec] = std::from_chars(first, last, port);
  if (ec != std::errc() || end != last || port < 0 || port > 65535) return false;
  o.host = host;
  o.port = port;
  return true;
}

// Set by the test suite's browser tests; a product run never has it.
bool testMode() {
  const char* mode = std::getenv("LADANEYA_TEST_MODE");
  return mode && std::string_view(mode) == "1";
}

std::optional<Command> parseServe(const std::vector<std::string>& args, std::string* error) {
  Command c{Command::kServe, {}, {}, {}, {}};
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& flag = args[i];
    if (flag == "--fake-clock") {
      if (!testMode()) {
        *error = "--fake-clock is only for the test suite";
        return std::nullopt;
      }
      c.serve.fakeClock = true;
      continue;
    }
    if (flag != "--data" && flag != "--listen" && flag != "--lang" && flag != "--web" &&
        flag != "--cloud") {
      *error = "unknown option " + flag;
      return std::nullopt;
    }
    if (i + 1 >= args.size()) {
      *error = flag + " needs a value";
      return std::nullopt;
    }
    const std::string& value = args[++i];
    if (flag == "--data") {
      c.serve.dataDir = value;
    } else if (flag == "--web") {
      c.serve.webDir = value;
    } else if (flag == "--cloud") {
      c.serve.cloudDir = std::filesystem::absolute(value);
    } else if (flag == "--listen") {
      if (!parseListen(value, c.serve)) {
        *error = "--listen wants HOST:PORT, such as 127.0.0.1:8080, not " + value;
        return std::nullopt;
      }
    } else if ((c.serve.langid = langidFromCode(value)) == 0) {
      *error = "--lang is one of ru, de, fr, not " + value;
      return std::nullopt;
    }
  }
  return c;
}

bool isDayText(const std::string& text) {
  static constexpr std::string_view kShape = "dd.dd.dddd";
  if (text.size() != kShape.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (kShape[i] == 'd' ? !std::isdigit(static_cast<unsigned char>(text[i])) : text[i] != '.')
      return false;
  return true;
}

// A whole number from `least` to `most`, all of the text.
bool parseNumber(const std::string& text, int least, int most, int& number) {
  const char* last = text.data() + text.size();
  auto [end, ec] = std::from_chars(text.data(), last, number);
  return ec == std::errc() && end == last && number >= least && number <= most;
}

bool parseYear(const std::string& value, int& year, std::string* error) {
  if (parseNumber(value, 1, std::numeric_limits<int>::max(), year)) return true;
  *error = "--year wants a whole number from 1, not " + value;
  return false;
}

// The PDF file the command writes: required, and named so.
bool outputFits(const std::string& command, const std::filesystem::path& output,
                std::string* error) {
  if (output.empty())
    *error = command + " needs -o FILE.pdf";
  else if (output.extension() != ".pdf")
    *error = "-o wants a file name ending in .pdf, not " + output.string();
  else
    return true;
  return false;
}

bool reportArgsFit(const ReportArgs& r, std::string* error) {
  if (r.kind != "diary" && r.kind != "pressure" && r.kind != "fluid")
    *error = "--kind is one of diary, pressure, fluid, not " + r.kind;
  else if (!outputFits("report", r.output, error))
    return false;
  else if (!r.date.empty() && r.kind == "diary")
    *error = "--date is for the pressure and fluid reports; the diary report takes --year";
  else if (r.year != 0 && r.kind != "diary")
    *error = "--year is for the diary report; the pressure and fluid reports take --date";
  else
    return true;
  return false;
}

std::optional<Command> parseReport(const std::vector<std::string>& args, std::string* error) {
  Command c{Command::kReport, {}, {}, {}, {}};
  ReportArgs& r = c.report;
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& flag = args[i];
    if (flag != "--data" && flag != "--kind" && flag != "--date" && flag != "--year" &&
        flag != "-o") {
      *error = "unknown option " + flag;
      return std::nullopt;
    }
    if (i + 1 >= args.size()) {
      *error = flag + " needs a value";
      return std::nullopt;
    }
    const std::string& value = args[++i];
    if (flag == "--data") {
      r.dataDir = value;
    } else if (flag == "--kind") {
      r.kind = value;
    } else if (flag == "-o") {
      r.output = value;
    } else if (flag == "--date") {
      if (!isDayText(value)) {
        *error = "--date wants a day as dd.MM.yyyy, such as 05.03.2026, not " + value;
        return std::nullopt;
      }
      r.date = value;
    } else if (!parseYear(value, r.year, error)) {
      return std::nullopt;
    }
  }
  if (!reportArgsFit(r, error)) return std::nullopt;
  return c;
}

std::optional<Command> parseBook(const std::vector<std::string>& args, std::string* error) {
  Command c{Command::kBook, {}, {}, {}, {}};
  BookArgs& b = c.book;
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& flag = args[i];
    if (flag != "--data" && flag != "--kind" && flag != "--year" && flag != "-o") {
      *error = "unknown option " + flag;
      return std::nullopt;
    }
    if (i + 1 >= args.size()) {
      *error = flag + " needs a value";
      return std::nullopt;
    }
    const std::string& value = args[++i];
    if (flag == "--data") {
      b.dataDir = value;
    } else if (flag == "-o") {
      b.output = value;
    } else if (flag == "--kind") {
      if (!parseNumber(value, 1, 5, b.kind)) {
        *error = "--kind is the book's design, a number from 1 to 5, not " + value;
        return std::nullopt;
      }
    } else if (!parseYear(value, b.year, error)) {
      return std::nullopt;
    }
  }
  if (!outputFits("book", b.output, error)) return std::nullopt;
  return c;
}

std::optional<Command> parseSync(const std::vector<std::string>& args, std::string* error) {
  Command c{Command::kSync, {}, {}, {}, {}};
  for (std::size_t i = 1; i < args.size(); ++i) {
    const std::string& flag = args[i];
    if (flag != "--data" && flag != "--cloud") {
      *error = "unknown option " + flag;
      return std::nullopt;
    }
    if (i + 1 >= args.size()) {
      *error = flag + " needs a value";
      return std::nullopt;
    }
    if (flag == "--data")
      c.sync.dataDir = args[++i];
    else
      c.sync.cloudDir = std::filesystem::absolute(args[++i]);
  }
  return c;
}

}  // namespace

std::optional<Command> parseCommandLine(const std::vector<std::string>& args, std::string* error) {
  if (args.empty() || args[0] == "--help" || args[0] == "-h" || args[0] == "help")
    return Command{Command::kHelp, {}, {}, {}, {}};
  if (args[0] == "--version") return Command{Command::kVersion, {}, {}, {}, {}};
  if (args[0] == "serve") return parseServe(args, error);
  if (args[0] == "report") return parseReport(args, error);
  if (args[0] == "book") return parseBook(args, error);
  if (args[0] == "sync") return parseSync(args, error);
  *error = "unknown command " + args[0];
  return std::nullopt;
}

std::string usage(const std::string& program) {
  return "Usage: " + program +
         " <command> [options]\n"
         "\n"
         "Commands:\n"
         "  serve        run the diary for the browsers of your phone and tablet\n"
         "  report       write a PDF of the diary, or of a day's pressure or liquids\n"
         "  book         write the photo book of the diary as a PDF for printing\n"
         "  sync         take in the changes of your other installations from the cloud folder\n"
         "               once, with the diary's server stopped\n"
         "\n"
         "Options of serve:\n"
         "  --data DIR          the installation's data folder (default: ./data)\n"
         "  --listen HOST:PORT  where to listen (default: 127.0.0.1:8080)\n"
         "  --lang ru|de|fr     language of the interface (default: ru)\n"
         "  --web DIR           the built web app (default: the one of this build)\n"
         "  --cloud DIR         keep the diary in step with other installations through this\n"
         "                      folder, which a file-sync tool keeps the same on each machine\n"
         "\n"
         "Options of report:\n"
         "  --data DIR          the installation's data folder (default: ./data)\n"
         "  --kind KIND         diary (default), pressure or fluid\n"
         "  --date dd.MM.yyyy   the day of a pressure or fluid report (default: today)\n"
         "  --year N            the child's year of life or the calendar year of the cycle\n"
         "                      diary (default: the one today falls in)\n"
         "  -o FILE.pdf         where to write the report (required)\n"
         "\n"
         "Options of book:\n"
         "  --data DIR          the installation's data folder (default: ./data)\n"
         "  --kind 1..5         the book's design (default: 1)\n"
         "  --year N            the child's year of life or the calendar year of the cycle\n"
         "                      diary (default: the one today falls in)\n"
         "  -o FILE.pdf         where to write the book (required)\n"
         "\n"
         "Options of sync:\n"
         "  --data DIR          the installation's data folder (default: ./data)\n"
         "  --cloud DIR         the cloud folder, kept from now on (default: the one set before)\n"
         "\n"
         "  --help              this text\n"
         "  --version           the program's version\n";
}

}  // namespace lad::app
