// Any line of a script: words come out that, quoted, are read as the same words, or a LineFault does.
#include <cstdlib>
#include <string>

#include "script/script_line.h"

namespace {

using namespace terravane;

std::string Quoted(const std::string& word)
{
    std::string quoted = "\"";
    for (const char letter : word) {
        if (letter == '"' || letter == '\\') quoted += '\\';
        quoted += letter;
    }
    return quoted + "\"";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
try {
    const std::vector<std::string> words = SplitLine({reinterpret_cast<const char*>(data), size});
    std::string line;
    for (const std::string& word : words) {
        line += Quoted(word) + ' ';
        const auto number = ReadWholeNumber(word);
        if (number && ReadWholeNumber(std::to_string(*number)) != number) std::abort();
    }
    if (SplitLine(line) != words) std::abort();
    return 0;
} catch (const LineFault&) {
    return 0;
}
