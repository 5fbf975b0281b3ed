// An item of the doctor's plan put into the diary: once ticked, its text opens in an editor,
// and what the user keeps of it goes into the day she gives.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen_host.h"

namespace lad::shell {

// Adds the text to the day's doctor field ("priv" in the child's diary), on a new line after
// what the field holds already.
void insertIntoNote(Application& app, const std::string& gid, const std::string& text, Date day);

// The editor "Прививки и исследования" over the screen, holding the text and today's date; its
// right button writes them into the diary, its left one writes nothing.
void offerPlanNote(Application& app, ScreenHost& host, const std::string& gid, std::string text);

}  // namespace lad::shell
