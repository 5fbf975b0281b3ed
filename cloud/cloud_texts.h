// The texts of the cloud mode: the line of the main menu and the explanation of each choice.
#pragma once

#include <string>

namespace lad {
class Context;
}  // namespace lad

namespace lad::cloud {

// The menu's line: the mode, with the percent of the folder that is complete once it is known.
std::string cloudText(const Context& context);

// The choices of the mode screen: off, the shared folder, the remote drive.
enum CloudChoice { kChoiceOff = 0, kChoiceFolder = 1, kChoiceRemote = 2 };

// What the choice means; the folder's text depends on whether the folder can be used.
std::string cloudExplanation(const Context& context, int choice, bool folderUsable);

}  // namespace lad::cloud
