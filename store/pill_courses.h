// Medicine courses written over their days: a course saved on one day of the diary lands on
// every day it touches, and leaves them all again when it is removed or replaced.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

class Context;
class DateCodec;
class Store;
class StoreBracket;

// The offset from the first day of the course's last day: count − 1 days, 7 × count − 1 days,
// or up to the day before the same day `count` months later; 0 for any other unit.
int lastCourseOffset(const DateCodec& dates, std::string_view pilllength, Date first);

// Days from one intake day to the next, by the periodicity's caption and the calendar weekday
// (1 Sunday to 7 Saturday) of the present day.
int courseStep(const Context& context, std::string_view period, int weekday);

// All three run inside an open bracket and act only on the keyword "pills".
//
// Writes the course (a JSON object) on each of its days, after what stands there; one without a
// key gets a new one. A value that is not JSON replaces the day's record as it stands.
void addNoteComplex(Store& store, StoreBracket& bracket, const std::string& type,
                    const std::string& value, const List& listData, const std::string& gid,
                    Date curdate);
// Takes the course of that key off every day and profile; a day left with none loses its record.
void removeNoteComplex(Store& store, StoreBracket& bracket, const std::string& type,
                       const std::string& key);
// Brings the course's other days in line with a day's new value: courses whose key went away are
// removed, new keys and objects without a key are written. A kept key is not rewritten.
void saveNoteComplex(Store& store, StoreBracket& bracket, const std::string& type,
                     const std::string& value, Date curdate, const std::string& gid,
                     const List& listData, const std::string& old);

}  // namespace lad
