#include "batch/answer_json.h"

#include "batch/project_work.h"

namespace terravane {

void to_json(Json& json, const Output& output)
{
    json = {{"path", output.path}, {"pages", output.pages}, {"bytes", output.bytes}, {"sha256", output.sha256}};
}

void from_json(const Json& json, Output& output)
{
    json.at("path").get_to(output.path);
    json.at("pages").get_to(output.pages);
    json.at("bytes").get_to(output.bytes);
    json.at("sha256").get_to(output.sha256);
}

void to_json(Json& json, const JournalEntry& entry)
{
    json = {{"content", entry.content}, {"made", entry.made}, {"today", entry.today}, {"outputs", entry.outputs}};
}

void from_json(const Json& json, JournalEntry& entry)
{
    json.at("content").get_to(entry.content);
    json.at("made").get_to(entry.made);
    json.at("today").get_to(entry.today);
    json.at("outputs").get_to(entry.outputs);
}

/// CBOR takes any bytes, also of a path that is no UTF-8.
std::string ToText(const ProjectAnswer& answer)
{
    const Json json{{"failure", answer.failure}, {"entry", answer.entry},     {"wasThere", answer.wasThere},
                    {"stale", answer.stale},     {"csvRows", answer.csvRows}, {"json", answer.json}};
    const auto bytes = Json::to_cbor(json);
    return {bytes.begin(), bytes.end()};
}

ProjectAnswer ReadAnswer(const std::string& text)
{
    const Json json = Json::from_cbor(text);
    ProjectAnswer answer;
    json.at("failure").get_to(answer.failure);
    json.at("entry").get_to(answer.entry);
    json.at("wasThere").get_to(answer.wasThere);
    json.at("stale").get_to(answer.stale);
    json.at("csvRows").get_to(answer.csvRows);
    json.at("json").get_to(answer.json);
    return answer;
}

}  // namespace terravane
