#include "batch/batch_options.h"

#include <algorithm>

#include "journal/sha256.h"
#include "program/version.h"

namespace terravane {

namespace {

bool IsNamed(const std::vector<std::string>& names, std::string_view name)
{
    return names.empty() || std::ranges::find(names, name) != names.end();
}

std::string Joined(std::vector<std::string> names)
{
    std::ranges::sort(names);
    std::string joined;
    for (const std::string& name : names) joined += name + ',';
    return joined;
}

}  // namespace

bool BatchOptions::Wants(std::string_view test) const
{
    return IsNamed(tests, test);
}

bool BatchOptions::WantsMaterial(std::string_view material) const
{
    return IsNamed(materials, material);
}

Choices BatchOptions::PressedChoices() const
{
    Choices choices;
    if (given.curve) choices.curve = *given.curve;
    choices.isSmooth = given.isSmooth;
    if (given.corrects) choices.corrects = *given.corrects;
    return choices;
}

std::string BatchOptions::Fingerprint() const
{
    const Choices choices = PressedChoices();
    std::string text(TERRAVANE_VERSION);  // another program may draw other pages
    text += ';' + Joined(tests) + ';' + Joined(materials) + ';' + std::string(choices.curve) + ';';
    for (const bool flag : {wantsSummary, isOneFile, isAsSaved, posts, choices.isSmooth, choices.corrects[0],
                            choices.corrects[1], choices.corrects[2]}) {
        text += flag ? '1' : '0';
    }
    return Sha256(text);
}

}  // namespace terravane
