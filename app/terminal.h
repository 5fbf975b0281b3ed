// What the command-line tools share on the terminal: the progress line, refusals, and the
// check that the data folder holds a diary.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

namespace lad::app {

// "days 12 of 294" rewritten in place, when a person watches the terminal; nothing otherwise.
std::function<void(std::size_t, std::size_t)> terminalProgress(const std::string& unit);

// Prints the message; the exit code of a wrong argument.
int refuse(const std::string& message);

// The refusal when the folder holds no diary of the edition; 0 when it does.
int refuseWithoutDiary(int appid, const std::filesystem::path& dataDir);

}  // namespace lad::app
