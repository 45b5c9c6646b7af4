#include "batch/project_answer.h"

#include "batch/entry_json.h"

namespace terravane {

/// CBOR takes any bytes, also of a path that is no UTF-8.
std::string ToText(const ProjectAnswer& answer)
{
    const Json json{{"failure", answer.failure},   {"entry", answer.entry},        {"wasThere", answer.wasThere},
                    {"stale", answer.stale},       {"csvRows", answer.csvRows},    {"json", answer.json},
                    {"noteRows", answer.noteRows}, {"hasDoubts", answer.hasDoubts}};
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
    json.at("noteRows").get_to(answer.noteRows);
    json.at("hasDoubts").get_to(answer.hasDoubts);
    return answer;
}

}  // namespace terravane
