#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>

#include "runtime/machine.h"
#include "runtime/native_path.h"
#include "runtime/paths.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

unsigned long ProcessNumber()
{
    return static_cast<unsigned long>(getpid());
}

Moment LocalNow()
{
    constexpr int kLastSecond = 59;  // a leap second is this one once more
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return MakeMoment(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                      std::min(local.tm_sec, kLastSecond));
}

std::string LoginName()
{
    const passwd* const entry = getpwuid(geteuid());
    return entry ? entry->pw_name : std::string();
}

std::vector<std::string> Arguments(int count, const char* const* texts)
{
    return {texts + std::min(count, 1), texts + count};
}

std::string ProgramFile()
{
    std::error_code failure;
    return ToText(std::filesystem::read_symlink("/proc/self/exe", failure));
}

std::string ShareFolder()
{
    return FolderOf(ProgramFile()) + "../share/terravane/";
}

/// A program that a package brought stands beside its entry in the desktop's menu.
bool IsInstalled()
{
    return access((FolderOf(ProgramFile()) + "../share/applications/terravane.desktop").c_str(), F_OK) == 0;
}

std::string DataFolder()
{
    const char* const named = std::getenv("XDG_DATA_HOME");
    if (named && *named) return WithMark(named) + "terravane";
    const char* const home = std::getenv("HOME");
    return WithMark(home ? home : "/") + ".local/share/terravane";
}

std::string MakePrivateFolder(const std::string& name)
{
    std::string path = ToText(std::filesystem::temp_directory_path() / ToNative(name + "-XXXXXX"));
    if (!mkdtemp(path.data())) {
        throw RuntimeError(error::kPathFileAccess, "No private folder can be made at '" + Printable(path) + "'.");
    }
    return path;
}

void BecomeTool() {}

}  // namespace terravane
