#include "script/script_run.h"

#include "runtime/streams.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A line as errors name it: without the blanks around it.
std::string Shown(const std::string& line)
{
    constexpr std::string_view kAround = " \t\r";
    const auto first = line.find_first_not_of(kAround);
    if (first == std::string::npos) return {};
    return line.substr(first, line.find_last_not_of(kAround) - first + 1);
}

}  // namespace

void ScriptRun::Run(std::istream& script, const std::string& name)
{
    std::string line;
    for (int number = 1; !HasEnded() && std::getline(script, line); ++number) {
        if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
        RunLine(line, name + ":" + std::to_string(number));
    }
}

void ScriptRun::RunFile(const std::string& path)
{
    std::ifstream script = OpenToRead(path);
    script.peek();  // a folder opens, and fails at the first byte
    if (script.bad() || !script.is_open()) return Complain(path, "The script can't be read.");
    script.clear();
    Run(script, path);
}

void ScriptRun::RunLine(const std::string& line, const std::string& place)
{
    try {
        const auto words = SplitLine(line);
        if (words.empty()) return;
        session_.surroundings.BeginLine(Shown(line));
        RunCommand(session_, words);
    } catch (const LineFault& fault) {
        Complain(place, fault.what());
    } catch (const RuntimeError& error) {
        session_.surroundings.Fail("", error);
    } catch (const std::exception& unexpected) {
        session_.surroundings.Fail("", RuntimeError(error::kInternal, unexpected.what()));
    }
}

void ScriptRun::Complain(const std::string& place, const std::string& sentence)
{
    hasFaults_ = true;
    complaints_ << Printable(place + ": " + sentence) << std::endl;
}

bool ScriptRun::HasEnded() const
{
    return session_.hasQuit || session_.surroundings.HasEnded() || HasFailedStrictly();
}

int ScriptRun::ExitStatus() const
{
    if (HasFailedStrictly()) return 2;
    return hasFaults_ ? 1 : 0;
}

}  // namespace terravane
