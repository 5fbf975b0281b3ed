#include "store/new_entry.h"

#include "store/measures.h"

namespace lad {

namespace {

constexpr int kIllnessDialog = 2;
constexpr int kFoodDialog = 3;
constexpr int kMeasureCodeBase = 9;

}  // namespace

NewEntry newEntryFor(int listedittype, const NewEntryInput& input) {
  if (listedittype == kIllnessDialog)
    return input.toChildCard ? NewEntry{input.text + "<tr>1", 2} : NewEntry{input.text, 3};
  if (listedittype == kFoodDialog)
    return {input.text + " (" + measureShortName(input.measure) + "<tr>" +
                std::to_string(kMeasureCodeBase + input.measure),
            0};
  return {input.text, 0};
}

}  // namespace lad
