/// What makes a document fit to be kept for decades (PDF/A-2u): it says of itself in XMP what its information
/// dictionary says, brings the colours that its numbers mean, tells its language and how its pages are called.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "drawing/display_list.h"
#include "render/pdf_objects.h"

namespace terravane::pdf {

inline constexpr std::string_view kMaker = "Terravane";

/// sRGB (IEC 61966-2-1) as an ICC profile of version 4: three primaries seen from D50, one curve for all of them.
std::string ColourProfile();

/// The document's description as XMP, in step with the information dictionary.
std::string Description(std::string_view title, Moment created);

/// What the catalog says of a document with this description and its pages, with the objects that it refers to.
std::string ArchiveEntries(Objects& objects, std::span<const DisplayList> pages, std::string_view description);

}  // namespace terravane::pdf
