#include "journal/history_line.h"

#include <algorithm>
#include <array>

#include <nlohmann/json.hpp>

#include "journal/sha256.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

using LineJson = nlohmann::ordered_json;

constexpr std::array<std::string_view, 4> kKinds{"begun", "changed", "found", "mended"};
constexpr std::string_view kSumKey = ",\"sum\":\"";
constexpr std::size_t kSumLength = 64;

std::string Dumped(const LineJson& json)
{
    return json.dump(-1, ' ', false, LineJson::error_handler_t::replace);
}

LineJson TextsJson(const FileTexts& texts)
{
    LineJson list = LineJson::array();
    for (const auto& [place, text] : texts) list.push_back({place.table, place.row, place.column, text});
    return list;
}

void AddChange(LineJson& json, const HistoryLine& line)
{
    const PlaceWords words = WordsOf(line.place);
    json["test"] = words.test;
    json["material"] = words.material;
    json["cell"] = words.cell;
    json["words"] = words.words;
    json["table"] = line.place.table;
    json["row"] = line.place.row;
    json["column"] = line.place.column;
    json["before"] = line.before;
    json["now"] = line.now;
}

LineJson JsonOf(const HistoryLine& line)
{
    LineJson json{{"at", line.at},
                  {"kind", kKinds[static_cast<std::size_t>(line.kind)]},
                  {"login", line.login},
                  {"version", line.version}};
    if (line.kind == LineKind::Begun) {
        json["from"] = line.from;
        json["texts"] = TextsJson(line.texts);
    }
    if (line.IsChange()) AddChange(json, line);
    return json;
}

/// Throws LineJson::exception where a key is missing or of another kind, RuntimeError for a kind of line that is none.
HistoryLine LineOf(const LineJson& json)
{
    HistoryLine line;
    line.at = json.at("at");
    const auto kind = std::ranges::find(kKinds, json.at("kind").get<std::string>());
    if (kind == kKinds.end()) throw RuntimeError(error::kTypeMismatch);
    line.kind = static_cast<LineKind>(kind - kKinds.begin());
    line.login = json.at("login");
    line.version = json.at("version");
    if (line.kind == LineKind::Begun) {
        line.from = json.at("from");
        for (const LineJson& text : json.at("texts"))
            line.texts[{text.at(0), text.at(1).get<int>(), text.at(2)}] = text.at(3);
    }
    if (line.IsChange()) {
        line.place = {json.at("table"), json.at("row").get<int>(), json.at("column")};
        line.before = json.at("before");
        line.now = json.at("now");
    }
    return line;
}

/// The sum that a line carries, and the line as it was summed; no sum where it has none.
struct Summed {
    std::string body, sum;
};
Summed SplitSum(std::string_view text)
{
    const std::size_t length = kSumKey.size() + kSumLength + 2;
    if (text.size() < length || !text.substr(text.size() - length).starts_with(kSumKey)) return {};
    return {std::string(text.substr(0, text.size() - length)) + "}",
            std::string(text.substr(text.size() - 2 - kSumLength, kSumLength))};
}

bool IsWhole(std::string_view text)
{
    const auto [body, sum] = SplitSum(text);
    return !sum.empty() && Sha256(body) == sum;
}

class Reader {
  public:
    ReadHistory Read(std::string_view text)
    {
        for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
            ++number_;
            Take(text.substr(0, end));
            text.remove_prefix(end + 1);
        }
        history_.isTorn = !text.empty();
        if (IsWhole(text)) Take(text);  // but for its line end
        TellTorn();
        return std::move(history_);
    }

  private:
    void Fault(int number, const std::string& what)
    {
        history_.faults.push_back("Line " + std::to_string(number) + " " + what);
    }

    void Take(std::string_view text)
    {
        const auto [body, sum] = SplitSum(text);
        const LineJson json = LineJson::parse(body, nullptr, false);
        if (sum.empty() || !json.is_object()) {
            TellTorn();
            torn_ = number_;
            return;
        }
        try {
            Take(json, body, sum);
        } catch (const LineJson::exception&) {
            Fault(number_, "is no line of a history.");
        } catch (const RuntimeError&) {
            Fault(number_, "is of a kind that this version does not know.");
        }
    }

    void Take(const LineJson& json, const std::string& body, const std::string& sum)
    {
        HistoryLine line = LineOf(json);
        if (line.kind == LineKind::Mended) torn_ = 0;  // it tells of the torn one
        TellTorn();
        if (Sha256(body) != sum) Fault(number_, "was changed: it does not fit its sum.");
        if (json.at("after") != history_.lastSum)
            Fault(number_, "does not follow the line before it: lines were taken out, put in or changed.");
        history_.lastSum = sum;
        history_.lines.push_back(std::move(line));
    }

    void TellTorn()
    {
        if (torn_ > 0) Fault(torn_, "is no line of a history.");
        torn_ = 0;
    }

    ReadHistory history_;
    int number_ = 0, torn_ = 0;
};

}  // namespace

std::string WriteLine(const HistoryLine& line, std::string_view after, std::string& sum)
{
    LineJson json = JsonOf(line);
    json["after"] = after;
    std::string body = Dumped(json);
    sum = Sha256(body);
    body.pop_back();
    return body.append(kSumKey).append(sum) + "\"}\n";
}

ReadHistory ReadLines(std::string_view text)
{
    return Reader().Read(text);
}

FileTexts StateAfter(const std::vector<HistoryLine>& lines, std::size_t count)
{
    FileTexts texts;
    for (std::size_t i = 0; i < std::min(count, lines.size()); ++i) {
        const HistoryLine& line = lines[i];
        if (line.kind == LineKind::Begun) texts = line.texts;
        if (!line.IsChange()) continue;
        if (line.now.empty())
            texts.erase(line.place);
        else
            texts[line.place] = line.now;
    }
    return texts;
}

std::string TimeText(Moment moment)
{
    return Format(moment, "yyyy-mm-dd") + "T" + Format(moment, "hh:nn:ss");
}

}  // namespace terravane
