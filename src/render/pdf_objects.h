/// The objects of a PDF file and the order in which they stand in it. Knows nothing of pages.
///
///     %PDF-1.7
///     streams, each "n 0 obj << ... >> stream ... endstream endobj"
///     the other objects, hundreds at a time in streams of their own: number and place of each, then each
///     the cross-reference stream: where each object stands, and which one is the catalog
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/dates.h"
#include "runtime/file_system.h"

namespace terravane::pdf {

/// "12 0 R".
std::string Reference(int object);

/// A text as a PDF string: "(A)" where ASCII will do, which is all that some converters to archives take, else in
/// UTF-16,
/// "<FEFF0E01>".
std::string TextString(std::string_view text);
/// Always in UTF-16.
std::string TextString(std::u16string_view text);

/// "(D:20261121143000)": local time without a zone; "(D:20261121)" at midnight, which stands for a day without an hour.
std::string DateString(Moment moment);
/// The same as XMP has it: "2026-11-21T14:30:00", "2026-11-21".
std::string XmpDate(Moment moment);

/// A unit of UTF-16 or a glyph's number as a string "<0041>" has it: four digits.
void AppendHexadecimal(std::string& out, std::uint16_t unit);

/// The same in a string "(..)", as bytes of half its size.
void AppendBytes(std::string& out, std::uint16_t unit);

/// A length or coordinate with at most three decimals, without needless zeros, behind a blank.
void AppendNumber(std::string& out, double value);

/// Small for what is packed once; Fair for what repeats itself, in a fifth of its time; Quick for pages, which are more
/// than all else, in a tenth for a quarter more.
enum class Packing { Small, Fair, Quick };

/// As the filter FlateDecode takes it.
std::string Deflated(std::string_view content, Packing packing);

/// Numbers are given as they are asked for; an object may be put later than it is referred to. What is put
/// first stands first.
class Objects {
  public:
    Objects();

    int Reserve();
    void Put(int object, std::string_view body);
    int Add(std::string_view body);
    /// dictionary  what stands in it besides the length: "/Filter /FlateDecode"
    int AddStream(std::string_view dictionary, std::string_view content);

    /// The whole file. identity: what tells this document from others, any text.
    Bytes Finish(int catalog, int information, std::string_view identity);

  private:
    /// Where an object stands: in the file, or as the `place`th one in the stream with the number `in`.
    struct Place {
        std::size_t place = 0;
        int in = 0;
    };
    struct Waiting {
        int object;
        std::size_t begin;  // in bodies_
    };

    Place& PlaceOf(int object) { return places_[static_cast<std::size_t>(object - 1)]; }
    void PutTogether(std::span<const Waiting> objects, std::size_t end);
    std::string CrossReference() const;
    void Append(std::string_view text);

    Bytes bytes_;
    std::vector<Place> places_;     // of object 1, 2, ...
    std::vector<Waiting> waiting_;  // objects without a stream
    std::string bodies_;            // theirs
};

}  // namespace terravane::pdf
