// Picture headers, of each format only as far as the size:
//
//   JPEG  FF D8, then segments FF marker length(2, big-endian, itself included); the size stands in the first
//   frame
//         header: marker, length, precision(1), height(2), width(2). A segment FF E1 length "Exif" 00 00 may tell how
//         the camera was held: "II" or "MM" for its byte order, 2A(2), at 4 the place(4) of its list: count(2), then
//         entries tag(2) kind(2) count(4) value(4); tag 0112 is 1 for upright, 5 to 8 for lying on a side
//   PNG   89 "PNG" 0D 0A 1A 0A, then the chunk length(4) "IHDR" width(4) height(4), big-endian
//   BMP   "BM", at 14 the header's length(4); 12: width(2) height(2), more: width(4) height(4, negative when
//   the
//         rows run downwards), little-endian
//   GIF   "GIF87a" or "GIF89a", width(2) height(2), little-endian
//   ICO   00 00 01 00 count(2), then entries; the first one's width(1) height(1), 0 meaning 256
#include "drawing/picture.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr std::int64_t kMostPixels = 100'000'000;
constexpr std::uint64_t kLargestFile = 64 << 20;  // bytes

struct PictureSize {
    std::int64_t width = 0, height = 0;
    bool isUpright = true;
};

/// The bytes, asked for by place; a place behind the end is a damaged picture.
class Header {
  public:
    Header(const std::string& name, const Bytes& bytes) : name_(name), bytes_(bytes) {}

    [[noreturn]] void Damaged() const { throw RuntimeError(error::kInvalidPicture, "Invalid picture: " + name_); }

    bool StartsWith(std::string_view signature) const
    {
        return bytes_.size() >= signature.size() &&
               std::equal(signature.begin(), signature.end(), bytes_.begin(),
                          [](char wanted, std::uint8_t byte) { return static_cast<std::uint8_t>(wanted) == byte; });
    }

    std::uint32_t Byte(std::size_t at) const
    {
        if (at >= bytes_.size()) Damaged();
        return bytes_[at];
    }
    std::uint32_t Big16(std::size_t at) const { return Byte(at) << 8 | Byte(at + 1); }
    std::uint32_t Big32(std::size_t at) const { return Big16(at) << 16 | Big16(at + 2); }
    std::uint32_t Little16(std::size_t at) const { return Byte(at + 1) << 8 | Byte(at); }
    std::uint32_t Little32(std::size_t at) const { return Little16(at + 2) << 16 | Little16(at); }
    std::size_t Size() const { return bytes_.size(); }

  private:
    const std::string& name_;
    const Bytes& bytes_;
};

/// Markers C0 to CF begin a frame, but for the tables C4, C8 and CC.
bool IsFrame(std::uint32_t marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// Markers that stand alone, without a length: TEM and the restarts.
bool StandsAlone(std::uint32_t marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
}

/// How the camera was held, 1 to 8, by the segment at a place; 1 where it does not tell, whatever else it holds.
std::uint32_t OrientationIn(const Header& header, std::size_t segment)
{
    constexpr std::uint32_t kUpright = 1, kExif = 0x45786966, kLittleEndian = 0x4949, kOrientation = 0x0112;
    constexpr std::size_t kShortest = 18;  // up to the list's place
    const std::size_t begin = segment + 10, end = std::min(segment + 2 + header.Big16(segment + 2), header.Size());
    if (segment + kShortest > end || header.Big32(segment + 4) != kExif) return kUpright;
    const bool isLittle = header.Big16(begin) == kLittleEndian;
    const auto two = [&](std::size_t at) { return isLittle ? header.Little16(at) : header.Big16(at); };
    const std::size_t list = begin + (isLittle ? header.Little32(begin + 4) : header.Big32(begin + 4));
    if (list + 2 > end) return kUpright;
    for (std::size_t entry = list + 2; entry < list + 2 + 12 * two(list) && entry + 12 <= end; entry += 12)
        if (two(entry) == kOrientation) return two(entry + 8);
    return kUpright;
}

/// The size of a picture that is stored as it was held.
PictureSize Held(std::uint32_t orientation, PictureSize stored)
{
    const bool liesOnASide = orientation >= 5 && orientation <= 8;
    if (liesOnASide) std::swap(stored.width, stored.height);
    stored.isUpright = orientation < 2 || orientation > 8;
    return stored;
}

PictureSize JpegSize(const Header& header)
{
    constexpr std::uint32_t kStartOfScan = 0xDA;
    constexpr std::uint32_t kEndOfImage = 0xD9;
    constexpr std::uint32_t kApplication1 = 0xE1;
    std::uint32_t orientation = 1;
    std::size_t at = 2;
    for (;;) {
        if (header.Byte(at) != 0xFF) header.Damaged();
        const std::uint32_t marker = header.Byte(at + 1);
        if (IsFrame(marker)) return Held(orientation, {header.Big16(at + 7), header.Big16(at + 5)});
        if (marker == kApplication1 && orientation == 1) orientation = OrientationIn(header, at);
        if (marker == kStartOfScan || marker == kEndOfImage) header.Damaged();  // the size comes before the scan
        if (marker == 0xFF)
            at += 1;  // a byte of padding
        else
            at += StandsAlone(marker) ? 2 : 2 + header.Big16(at + 2);
    }
}

PictureSize PngSize(const Header& header)
{
    constexpr std::uint32_t kImageHeader = 0x49484452;  // "IHDR"
    if (header.Big32(12) != kImageHeader) header.Damaged();
    return {header.Big32(16), header.Big32(20)};
}

PictureSize BmpSize(const Header& header)
{
    constexpr std::uint32_t kOldHeader = 12;
    if (header.Little32(14) == kOldHeader) return {header.Little16(18), header.Little16(20)};
    const auto rows = static_cast<std::int32_t>(header.Little32(22));
    return {static_cast<std::int32_t>(header.Little32(18)), std::abs(std::int64_t{rows})};
}

PictureSize GifSize(const Header& header)
{
    return {header.Little16(6), header.Little16(8)};
}

PictureSize IcoSize(const Header& header)
{
    const auto side = [&](std::size_t at) { return header.Byte(at) == 0 ? 256 : header.Byte(at); };
    if (header.Little16(4) == 0) header.Damaged();
    return {side(6), side(7)};
}

struct Kind {
    std::string_view signature;
    PictureFormat format;
    PictureSize (*size)(const Header& header);
};

using namespace std::string_view_literals;

constexpr std::array kKinds{
    Kind{"\xFF\xD8\xFF"sv, PictureFormat::Jpeg, JpegSize}, Kind{"\x89PNG\r\n\x1A\n"sv, PictureFormat::Png, PngSize},
    Kind{"GIF87a"sv, PictureFormat::Gif, GifSize},         Kind{"GIF89a"sv, PictureFormat::Gif, GifSize},
    Kind{"\0\0\1\0"sv, PictureFormat::Ico, IcoSize},       Kind{"BM"sv, PictureFormat::Bmp, BmpSize},
};

const Kind& KindOf(const Header& header)
{
    const auto found =
        std::find_if(kKinds.begin(), kKinds.end(), [&](const Kind& kind) { return header.StartsWith(kind.signature); });
    if (found == kKinds.end()) header.Damaged();
    return *found;
}

bool IsDrawable(PictureSize size)
{
    return size.width > 0 && size.height > 0 && size.width <= kMostPixels && size.height <= kMostPixels &&
           size.width * size.height <= kMostPixels;
}

/// The pictures that somebody holds. A job's pages read their logos anew, and a photograph as logo has megabytes.
class PicturesInUse {
  public:
    /// The one that is the same, where there is one.
    std::shared_ptr<const Picture> Share(Picture picture)
    {
        const std::scoped_lock lock(mutex_);
        std::erase_if(pictures_, [](const auto& known) { return known.expired(); });
        for (const auto& known : pictures_)
            if (auto same = known.lock(); same && *same == picture) return same;
        auto own = std::make_shared<const Picture>(std::move(picture));
        pictures_.push_back(own);
        return own;
    }

  private:
    std::mutex mutex_;
    std::vector<std::weak_ptr<const Picture>> pictures_;
};

}  // namespace

std::shared_ptr<const Picture> ReadPicture(std::string name, Bytes bytes)
{
    static PicturesInUse pictures;
    const Header header(name, bytes);
    const Kind& kind = KindOf(header);
    const PictureSize size = kind.size(header);
    if (!IsDrawable(size)) header.Damaged();
    return pictures.Share({std::move(name), kind.format, static_cast<int>(size.width), static_cast<int>(size.height),
                           std::move(bytes), size.isUpright});
}

std::shared_ptr<const Picture> LoadPicture(const FileSystem& files, const std::string& path)
{
    return ReadPicture(NameOf(path), files.ReadAtMost(path, kLargestFile));
}

}  // namespace terravane
