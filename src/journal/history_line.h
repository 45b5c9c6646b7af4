/// The lines of a project's history, and how each holds on to the one before.
///
/// A line is a JSON object in UTF-8. Its last key is "sum": the SHA-256 of the line without it. The key before,
/// "after", repeats the sum of the line before; of the first line it is empty. A text that is changed by hand no longer
/// fits its sum, a line that is taken out or put in no longer fits its neighbours.
///
///   {"at":"2026-11-21T12:00:00","kind":"begun","login":"somchai","version":"1.0","from":"/lab/TRVN_old.mdb",
///    "texts":[["HEAD",1,"project_client","..."],...],"after":"","sum":"5f0c..."}
///   {"at":"...","kind":"changed","login":"...","version":"1.0","test":"std","material":"soil","cell":"MSHWt 2 1",
///    "words":"Mass of Can + Wet Soil, (g), trial 1","table":"STDSOIL","row":1,"column":"std_wcanw","before":"",
///    "now":"85.30","after":"...","sum":"..."}
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "journal/file_texts.h"
#include "runtime/dates.h"

namespace terravane {

/// Begun    the history begins, or begins anew: from here on all texts are known
/// Changed  a Save changed a text
/// Found    a text was changed by somebody else's program, or by a Save whose line is lost
/// Mended   a line before this one is torn: its writer was killed
enum class LineKind { Begun, Changed, Found, Mended };

/// from     of a beginning: the project that was copied; empty: none was
/// texts    of a beginning: what stood in the project
/// place,   of a change: where, and the text before and after
/// before, now
struct HistoryLine {
    std::string at;  // "2026-11-21T12:00:00"
    LineKind kind = LineKind::Changed;
    std::string login, version;
    std::string from = {};
    FileTexts texts = {};
    StoredPlace place = {};
    std::string before = {}, now = {};

    bool IsChange() const { return kind == LineKind::Changed || kind == LineKind::Found; }
};

/// The line with its line end.
/// after  sum of the line before
/// sum    takes this one's
std::string WriteLine(const HistoryLine& line, std::string_view after, std::string& sum);

/// A history as it is read.
/// faults     a sentence for each line that does not fit, "Line 12 was changed: ..."
/// lastSum    of the last line that is whole
/// isTorn     whether bytes without a line end stand behind it
struct ReadHistory {
    std::vector<HistoryLine> lines;
    std::vector<std::string> faults;
    std::string lastSum;
    bool isTorn = false;
};

/// Nothing fails: what is no line is a fault, but for a torn one that a later line tells of.
ReadHistory ReadLines(std::string_view text);

/// What stands in the project after the first `count` lines.
FileTexts StateAfter(const std::vector<HistoryLine>& lines, std::size_t count);

/// "2026-11-21T12:00:00"
std::string TimeText(Moment moment);

}  // namespace terravane
