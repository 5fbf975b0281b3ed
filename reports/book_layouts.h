// The layouts of a picture page of the photo book: where each photograph of the page stands.
// A layout's number tells its capacity by its first digit (10 to 12 one photo, 20 to 23 and
// 29 two, 30 to 33 three, 40 and 41 four).
#pragma once

#include <optional>
#include <vector>

#include "drawing/geometry.h"

namespace lad::reports {

// The layout that a picture page of that many photos takes in the book kind.
int chooseLayout(int count, int kind);

// How many photos the layout holds.
int layoutCapacity(int layout);

// The layouts offered for a page of that many photos in use (more than four count as four):
// 10 to 12, 20 to 23, 30 to 33, or 40 and 41; none for no photo.
std::vector<int> layoutChoices(int count);

// imageLocation: the layout kept when the count of photos in use changes; one that does not
// hold that count snaps to the first offered for it.
int snapLayout(int layout, int count);

// The rectangle of the position (from 1) in the layout on a page of the size; nullopt for a
// position the layout does not have, and for every position of a layout that places nothing.
std::optional<drawing::Rect> layoutRect(int layout, int pos, drawing::Size page, double ot);

// The layouts with a white passe-partout around each photo, in the kinds that have it.
bool layoutHasFrame(int layout, int kind);

}  // namespace lad::reports
