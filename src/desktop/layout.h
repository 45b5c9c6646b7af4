/// Where the controls of a form stand in its window, as a tree of places. A window is its layout and nothing else: what
/// the places show and do comes from the controls, which are found by their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace terravane {

struct Place {
    enum class Kind {
        Row,      // parts beside each other
        Column,   // parts above each other
        Pair,     // parts above each other where the height allows it, else beside each other
        Fields,   // parts are Controls, each with its caption at its left, aligned
        Group,    // a captioned frame around the parts; control is the form's Frame
        Tabs,     // parts are the pages; control is the tab control
        Control,  // the control alone
        Field,    // the control with its caption at its left, `text` its unit
        Result,   // caption small, figure large, `text` its unit
        Banner,   // the coloured title of a sheet
        Picture,  // a picture box that shows one picture, `text` what it is
        Plot,     // a picture box with `text` naming the one that stands on it (may be empty)
        Space     // takes what room is left
    };
    Kind kind;
    std::string_view control = {};
    std::vector<Place> parts = {};
    std::string_view text = {};
    int stretch = 0;
};

namespace layout {

Place Row(std::vector<Place> parts, int stretch = 0);
Place Column(std::vector<Place> parts, int stretch = 0);
Place Pair(std::vector<Place> parts, int stretch = 1);
Place Fields(const std::vector<std::string_view>& controls, int stretch = 0);
Place Group(std::string_view frame, std::vector<Place> parts, int stretch = 0);
Place Tabs(std::string_view control, std::vector<Place> pages);
Place One(std::string_view control, int stretch = 0);
Place Field(std::string_view control, int stretch = 0);
/// The same with the unit behind it.
Place Measured(std::string_view control, std::string_view unit);
/// The control under a caption of the window's own, for one that has none; outside of fields the caption is heard, not
/// seen.
Place Named(std::string_view control, std::string_view caption);
/// Fields under each other with captions of the window's own.
Place NamedFields(std::vector<Place> fields, int stretch = 0);
Place Result(std::string_view control, std::string_view unit);
Place Banner(std::string_view control);
Place Plot(std::string_view frame, std::string_view plot, int stretch = 1);
Place Picture(std::string_view control, std::string_view name);
Place Space();

/// The general data block, the same on every sheet; a head field of the sheet's own stands below the location.
Place GeneralData(std::string_view ownField = {});

}  // namespace layout

/// The names of all controls that have a place.
std::vector<std::string> PlacedControls(const Place& place);

}  // namespace terravane
