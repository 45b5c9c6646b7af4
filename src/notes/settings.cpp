#include "notes/settings.h"

#include <algorithm>

#include "runtime/numbers.h"
#include "runtime/paths.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane::notes {

namespace {

constexpr std::string_view kOff = "off";

const Rule* FindRule(std::string_view key)
{
    for (const RuleGroup& group : RuleGroups()) {
        const auto found = std::ranges::find(group.rules, key, &Rule::key);
        if (found != group.rules.end()) return &*found;
    }
    return nullptr;
}

/// Without blanks, tabs and a carriage return at both ends.
std::string_view Bare(std::string_view text)
{
    constexpr std::string_view kSpace = " \t\r";
    const auto first = text.find_first_not_of(kSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

std::vector<std::string_view> WordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!(text = Bare(text)).empty()) {
        const std::string_view word = text.substr(0, text.find_first_of(" \t"));
        words.push_back(word);
        text.remove_prefix(word.size());
    }
    return words;
}

std::string Quoted(std::string_view text)
{
    return '"' + Printable(text) + '"';
}

}  // namespace

Settings Settings::FromText(std::string_view text)
{
    constexpr std::string_view kMark = "\xEF\xBB\xBF";  // what some editors put in front of UTF-8
    if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
    Settings settings;
    for (int number = 1; !text.empty(); ++number) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        const std::string complaint = settings.Take(Bare(line));
        if (!complaint.empty())
            settings.complaints_.push_back(std::string(kSettingsFile) + ", line " + std::to_string(number) + ": " +
                                           complaint);
    }
    return settings;
}

std::string SettingsPath(const std::string& brandFolder)
{
    return FolderOf(WithoutMark(brandFolder)) + std::string(kSettingsFile);
}

Settings Settings::Beside(const FileSystem& files, const std::string& brandFolder)
{
    const std::string path = SettingsPath(brandFolder);
    if (!files.Exists(path)) return {};
    try {
        const Bytes content = files.Read(path);
        return FromText(std::string(content.begin(), content.end()));
    } catch (const RuntimeError& error) {
        Settings settings;
        settings.complaints_.push_back(std::string(kSettingsFile) + ": " + error.Description());
        return settings;
    }
}

/// What is wrong with the line; empty where it was taken, or says nothing.
std::string Settings::Take(std::string_view line)
{
    if (line.empty() || line.front() == '#') return {};
    const auto sign = line.find('=');
    if (sign == std::string_view::npos) return "there is no \"=\" in " + Quoted(line) + ".";
    const std::string_view key = Bare(line.substr(0, sign));
    const Rule* rule = FindRule(key);
    if (!rule) return "there is no note " + Quoted(key) + ".";

    const auto words = WordsOf(line.substr(sign + 1));
    if (words.size() == 1 && SameName(words.front(), kOff)) {
        off_.emplace_back(key);
        return {};
    }
    if (words.size() != rule->limits || words.empty()) {
        const std::string takes = rule->limits == 0 ? "no limit" : rule->limits == 1 ? "one limit" : "two limits";
        return "the note " + Quoted(key) + " takes " + takes + ", or \"off\".";
    }
    LimitValues limits{};
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!IsNumber(words[i])) return Quoted(words[i]) + " is no number.";
        limits[i] = Val(words[i]);
    }
    limits_.insert_or_assign(std::string(key), limits);
    return {};
}

bool Settings::IsOn(const Rule& rule) const
{
    return std::ranges::find(off_, rule.key) == off_.end();
}

LimitValues Settings::LimitsOf(const Rule& rule) const
{
    const auto own = limits_.find(rule.key);
    return own == limits_.end() ? rule.limit : own->second;
}

}  // namespace terravane::notes
