#include "journal/history.h"

#include <utility>

namespace terravane {

namespace {

constexpr std::string_view kProjectExtension = ".mdb", kHistory = ".history";
constexpr std::uint64_t kLargestHistory = 1ULL << 30;  // bytes; a line is some four hundred

HistoryLine LineBy(const Writer& writer, LineKind kind)
{
    return {writer.at, kind, writer.login, writer.version};
}

void AddChanges(std::vector<HistoryLine>& lines, const Writer& writer, LineKind kind, const FileTexts& before,
                const FileTexts& after)
{
    for (auto& [place, was, is] : Differences(before, after)) {
        HistoryLine& line = lines.emplace_back(LineBy(writer, kind));
        line.place = place;
        line.before = was;
        line.now = is;
    }
}

HistoryLine Beginning(const Writer& writer, const std::string& source, FileTexts texts)
{
    HistoryLine line = LineBy(writer, LineKind::Begun);
    line.from = source;
    line.texts = std::move(texts);
    return line;
}

}  // namespace

std::string HistoryPath(const std::string& project)
{
    const bool isUsual = project.ends_with(kProjectExtension);
    return project.substr(0, project.size() - (isUsual ? kProjectExtension.size() : 0)).append(kHistory);
}

ReadHistory LoadHistory(const FileSystem& files, const std::string& project)
{
    const std::string path = HistoryPath(project);
    if (!files.Exists(path)) return {};
    const Bytes content = files.ReadAtMost(path, kLargestHistory);
    return ReadLines({reinterpret_cast<const char*>(content.data()), content.size()});
}

HistoryKeeper::Known& HistoryKeeper::KnownOf(const std::string& project)
{
    const std::string path = HistoryPath(project);
    Known& known = known_[path];
    const std::uint64_t stamp = files_.Stamp(path);
    if (stamp != 0 && stamp == known.stamp) return known;
    ReadHistory read = LoadHistory(files_, project);
    known = {stamp, std::move(read.lastSum), StateAfter(read.lines, read.lines.size()), !read.lines.empty(),
             read.isTorn};
    return known;
}

/// Where the writing stops half way, the torn line is mended by the next one. All lines of a save go in one write.
void HistoryKeeper::Add(const std::string& project, Known& known, std::vector<HistoryLine> lines)
{
    if (lines.empty()) return;
    const std::string path = HistoryPath(project);
    std::string text;
    if (known.isTorn) {
        text = "\n";
        HistoryLine mended = LineBy({lines.front().at, lines.front().login, lines.front().version}, LineKind::Mended);
        lines.insert(lines.begin(), std::move(mended));
    }
    std::string sum = known.lastSum;
    for (const HistoryLine& line : lines) text += WriteLine(line, sum, sum);
    known.stamp = 0;  // read anew where this fails
    files_.Append(path, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
    files_.MakeSure(path);
    known.lastSum = sum;
    known.isThere = true;
    known.isTorn = false;
    known.stamp = files_.Stamp(path);
}

void HistoryKeeper::Save(const jet::SavedFile& saved, const Writer& writer)
{
    Known& known = KnownOf(saved.path);
    const FileTexts before = TextsOf(saved.before);
    FileTexts after = TextsOf(saved.after);
    std::vector<HistoryLine> lines;
    AddChanges(lines, writer, LineKind::Changed, before, after);
    if (lines.empty()) return;
    if (!known.isThere)
        lines.insert(lines.begin(), Beginning(writer, {}, before));
    else {
        std::vector<HistoryLine> found;
        AddChanges(found, writer, LineKind::Found, known.texts, before);
        lines.insert(lines.begin(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
    }
    Add(saved.path, known, std::move(lines));
    known.texts = std::move(after);
}

void HistoryKeeper::Begin(const std::string& project, const std::string& source, const Writer& writer)
{
    const auto lock = files_.Lock(project);
    Known& known = KnownOf(project);
    FileTexts texts = TextsOf(files_.Read(project));
    Add(project, known, {Beginning(writer, source, texts)});
    known.texts = std::move(texts);
}

}  // namespace terravane
