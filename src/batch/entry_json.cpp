#include "batch/entry_json.h"

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

}  // namespace terravane
