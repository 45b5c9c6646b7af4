#include "journal/drafts.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include <nlohmann/json.hpp>

#include "journal/history_line.h"
#include "journal/sha256.h"
#include "runtime/machine.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

using DraftJson = nlohmann::ordered_json;

constexpr std::string_view kDraftExtension = ".draft";
constexpr std::uint64_t kLargestDraft = 64 << 20;  // bytes

std::string LineText(const DraftJson& json)
{
    return json.dump(-1, ' ', false, DraftJson::error_handler_t::replace) + '\n';
}

DraftJson TextsJson(const Step& step)
{
    DraftJson texts = DraftJson::array();
    for (const Step::Rows& rows : step.ChangedRows())
        texts.push_back({rows.grid->Name(), kRowsPlace, 0, std::to_string(rows.after)});
    for (const auto& [place, before, after] : step.Changes())
        texts.push_back({place.control->Name(), place.row, place.column, after});
    return texts;
}

using Place = std::tuple<std::string, int, int>;

/// Throws DraftJson::exception for what is no draft.
Draft DraftFrom(std::string_view lines)
{
    Draft draft;
    std::map<Place, std::string> texts;
    bool isHead = true;
    for (auto end = lines.find('\n'); end != std::string_view::npos; end = lines.find('\n')) {
        const DraftJson json = DraftJson::parse(lines.substr(0, end));
        lines.remove_prefix(end + 1);
        if (std::exchange(isHead, false)) {
            draft.of = {json.at("project"), json.at("test"), json.at("material")};
            continue;
        }
        draft.at = json.at("at");
        for (const DraftJson& text : json.at("texts"))
            texts[{text.at(0), text.at(1).get<int>(), text.at(2).get<int>()}] = text.at(3);
    }
    for (const auto& [place, text] : texts)
        draft.texts.push_back({std::get<0>(place), std::get<1>(place), std::get<2>(place), text});
    return draft;
}

/// Nothing where it is none: a stranger's, or torn at its head.
std::optional<Draft> ReadDraft(const FileSystem& files, const std::string& path)
try {
    const Bytes content = files.ReadAtMost(path, kLargestDraft);
    Draft draft = DraftFrom({reinterpret_cast<const char*>(content.data()), content.size()});
    draft.path = path;
    if (draft.texts.empty()) return std::nullopt;
    return draft;
} catch (const DraftJson::exception&) {
    return std::nullopt;
} catch (const RuntimeError&) {
    return std::nullopt;
}

void AppendText(FileSystem& files, const std::string& path, const std::string& text)
{
    files.Append(path, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

}  // namespace

void DraftKeeper::Open(DraftOf of, Moment now)
{
    Leave();
    of_ = std::move(of);
    const std::string oldest = TimeText(now - std::chrono::days(kDaysKept));
    for (const Draft& draft : ReadAll())
        if (draft.at < oldest) files_.TakeAway(draft.path);
}

void DraftKeeper::Leave()
{
    try {
        Sync();
    } catch (const RuntimeError&) {  // it is there all the same, unless the power fails now
    }
    lock_.reset();
    path_.clear();
}

void DraftKeeper::Saved()
{
    lock_.reset();
    if (!path_.empty()) files_.TakeAway(path_);
    path_.clear();
    isSynced_ = true;
}

/// A number of this process makes the name: two windows, and two drafts of one window, never meet.
void DraftKeeper::Begin()
{
    static unsigned count = 0;
    files_.MakeFolders(folder_);
    std::string path;
    do
        path = folder_ + Sha256(of_.project).substr(0, 16) + "-" + of_.test + "-" + of_.material + "-" +
               std::to_string(ProcessNumber()) + "-" + std::to_string(++count) + std::string(kDraftExtension);
    while (files_.Exists(path));
    AppendText(files_, path, LineText({{"project", of_.project}, {"test", of_.test}, {"material", of_.material}}));
    lock_ = files_.Lock(path);
    path_ = std::move(path);
}

void DraftKeeper::Add(const Step& step, const std::string& at)
{
    if (step.IsEmpty()) return;
    if (path_.empty()) Begin();
    AppendText(files_, path_, LineText({{"at", at}, {"texts", TextsJson(step)}}));
    isSynced_ = false;
}

void DraftKeeper::Sync()
{
    if (std::exchange(isSynced_, true)) return;
    files_.MakeSure(path_);
}

/// One that a window holds is being written; a process that was killed holds nothing.
std::vector<Draft> DraftKeeper::ReadAll() const
{
    std::vector<Draft> drafts;
    if (!files_.IsFolder(folder_)) return drafts;
    for (const std::string& name : files_.Names(folder_)) {
        if (!name.ends_with(kDraftExtension) || files_.IsLocked(folder_ + name)) continue;
        if (auto draft = ReadDraft(files_, folder_ + name)) drafts.push_back(std::move(*draft));
    }
    std::ranges::sort(drafts, std::greater(), [](const Draft& draft) { return std::tie(draft.at, draft.path); });
    return drafts;
}

std::vector<Draft> DraftKeeper::Waiting() const
{
    std::vector<Draft> drafts = ReadAll();
    std::erase_if(drafts, [this](const Draft& draft) { return draft.of != of_; });
    return drafts;
}

std::vector<Draft> DraftKeeper::WaitingOf(std::string_view project) const
{
    std::vector<Draft> drafts = ReadAll();
    std::erase_if(drafts, [project](const Draft& draft) { return draft.of.project != project; });
    return drafts;
}

}  // namespace terravane
