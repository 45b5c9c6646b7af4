/// Journal entries as JSON.
#pragma once

#include <nlohmann/json.hpp>

#include "batch/journal_entry.h"

namespace terravane {

using Json = nlohmann::ordered_json;

void to_json(Json& json, const Output& output);
void from_json(const Json& json, Output& output);
void to_json(Json& json, const JournalEntry& entry);
void from_json(const Json& json, JournalEntry& entry);

}  // namespace terravane
