#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <io.h>
#include <shlobj.h>
#include <windows.h>

#include "runtime/machine.h"
#include "runtime/native_path.h"
#include "runtime/paths.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

unsigned long ProcessNumber()
{
    return GetCurrentProcessId();
}

Moment LocalNow()
{
    constexpr WORD kLastSecond = 59;
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return MakeMoment(now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, std::min(now.wSecond, kLastSecond));
}

/// The texts that main is given went through the system's old code page; the command line itself did not.
std::string LoginName()
{
    std::wstring name(257, L'\0');  // UNLEN and its end
    DWORD size = static_cast<DWORD>(name.size());
    if (!GetUserNameW(name.data(), &size)) return {};
    name.resize(size - 1);
    return ToText(std::filesystem::path(name));
}

std::vector<std::string> Arguments(int, const char* const*)
{
    int count = 0;
    wchar_t** const texts = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(ToText(std::filesystem::path(texts[i])));
    LocalFree(texts);
    return arguments;
}

std::string ProgramFile()
{
    constexpr std::size_t kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return ToText(path);
}

std::string ShareFolder()
{
    return FolderOf(ProgramFile()) + "share\\terravane\\";
}

/// An installed program has its uninstaller beside it. That its folder can be written says nothing: an installation for
/// one user can.
bool IsInstalled()
{
    std::error_code failure;
    return std::filesystem::exists(ToNative(FolderOf(ProgramFile()) + "uninstall.exe"), failure);
}

std::string DataFolder()
{
    wchar_t* found = nullptr;
    const bool isFound = SHGetKnownFolderPath(FOLDERID_RoamingAppData, 0, nullptr, &found) == S_OK;
    const std::string folder = isFound ? ToText(found) : FolderOf(ProgramFile());
    CoTaskMemFree(found);
    return WithMark(folder) + "terravane";
}

/// The temporary folder is the user's own, and what is made in it takes its access list.
std::string MakePrivateFolder(const std::string& name)
{
    constexpr int kTries = 100;
    const std::string start = ToText(std::filesystem::temp_directory_path()) + name + "-";
    for (int i = 0; i < kTries; ++i) {
        std::string path = start + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(GetTickCount64()) +
                           "-" + std::to_string(i);
        std::error_code failure;
        if (std::filesystem::create_directory(ToNative(path), failure)) return path;
    }
    throw RuntimeError(error::kPathFileAccess, "No private folder can be made at '" + Printable(start) + "'.");
}

void BecomeTool()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    _set_error_mode(_OUT_TO_STDERR);
    for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

}  // namespace terravane
