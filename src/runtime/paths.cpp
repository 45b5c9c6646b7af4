#include "runtime/paths.h"

#include <algorithm>

#include "runtime/folder_marks.h"
#include "runtime/native_path.h"

namespace terravane {

namespace fs = std::filesystem;

namespace {

std::size_t NameStart(std::string_view path)
{
    const std::size_t mark = path.find_last_of(kFolderMarks);
    return mark == std::string_view::npos ? 0 : mark + 1;
}

}  // namespace

fs::path ToNative(std::string_view utf8)
{
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string ToText(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool IsFolderMark(char character)
{
    return kFolderMarks.find(character) != std::string_view::npos;
}

char FolderMarkOf(std::string_view path)
{
    const std::size_t mark = path.find_last_of(kFolderMarks);
    return mark == std::string_view::npos ? kFolderMarks.front() : path[mark];
}

std::string FolderOf(std::string_view path)
{
    return std::string(path.substr(0, NameStart(path)));
}

std::string NameOf(std::string_view path)
{
    return std::string(path.substr(NameStart(path)));
}

std::string WithMark(std::string folder)
{
    if (folder.empty() || !IsFolderMark(folder.back())) folder += FolderMarkOf(folder);
    return folder;
}

std::string WithoutMark(std::string folder)
{
    if (folder.size() > 1 && IsFolderMark(folder.back())) folder.pop_back();
    return folder;
}

std::string FullPath(const std::string& path)
{
    std::error_code failure;
    const fs::path full = fs::absolute(ToNative(path), failure);
    if (failure) return path;
    const std::string text = ToText(full.lexically_normal().make_preferred());
    const std::string name = NameOf(path);
    return name == "." || name == ".." ? WithMark(text) : text;  // not every system's library puts it there
}

std::string RealPath(const std::string& path)
{
    std::error_code failure;
    const fs::path real = fs::weakly_canonical(ToNative(path), failure);
    return failure ? path : ToText(real);
}

std::string ExtensionOf(const std::string& path)
{
    return ToText(ToNative(path).extension());
}

std::string WithoutExtension(const std::string& path)
{
    return ToText(ToNative(path).replace_extension());
}

std::string Moved(const std::string& path, const std::string& folder, const std::string& other)
{
    return ToText((ToNative(other) / ToNative(path).lexically_relative(ToNative(folder))).make_preferred());
}

std::vector<std::string> FilesBelow(const std::string& folder)
{
    std::vector<fs::path> files;
    std::error_code failure;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator entry(ToNative(folder), options, failure), end; entry != end && !failure;
         entry.increment(failure)) {
        std::error_code ignored;
        if (!entry->is_directory(ignored)) files.push_back(entry->path());
    }
    std::ranges::sort(files);
    std::vector<std::string> texts(files.size());
    std::ranges::transform(files, texts.begin(), ToText);
    return texts;
}

bool IsFile(const std::string& path)
{
    std::error_code ignored;
    return fs::is_regular_file(ToNative(path), ignored);
}

bool MoveOver(const std::string& from, const std::string& to)
{
    std::error_code failure;
    fs::rename(ToNative(from), ToNative(to), failure);
    return !failure;
}

void RemoveAll(const std::string& path)
{
    std::error_code ignored;
    fs::remove_all(ToNative(path), ignored);
}

}  // namespace terravane
