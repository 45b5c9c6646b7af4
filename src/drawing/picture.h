/// Picture files, taken by what is inside them whatever their names say.
#pragma once

#include <memory>
#include <string>

#include "runtime/file_system.h"

namespace terravane {

enum class PictureFormat { Jpeg, Png, Bmp, Gif, Ico };

/// name    the file's name, as in answers ("dep_logo.jpg")
/// width, height  pixels, as the picture is to be seen
/// isUpright  whether its rows stand as they are to be seen; a camera held sideways says in the file that they do not
/// bytes   the file as it is; decoding is the renderer's
struct Picture {
    std::string name;
    PictureFormat format = PictureFormat::Jpeg;
    int width = 0, height = 0;
    Bytes bytes;
    bool isUpright = true;
    bool operator==(const Picture&) const = default;
};

/// Reads a picture's header; a picture that somebody holds already is the same one, its bytes stand in memory once. May
/// be called from several threads. Error 481 "Invalid picture" (the name in the description) for bytes of no known
/// format, for a size of zero and for one above 100 million pixels.
std::shared_ptr<const Picture> ReadPicture(std::string name, Bytes bytes);

/// The same from a file; error 53 names the path where there is none, 75 that of a file above 64 MiB.
std::shared_ptr<const Picture> LoadPicture(const FileSystem& files, const std::string& path);

}  // namespace terravane
