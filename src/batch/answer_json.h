/// Journal entries and answers as JSON.
#pragma once

#include <nlohmann/json.hpp>

#include "batch/journal.h"

namespace terravane {

using Json = nlohmann::ordered_json;

void to_json(Json& json, const Output& output);
void from_json(const Json& json, Output& output);
void to_json(Json& json, const JournalEntry& entry);
void from_json(const Json& json, JournalEntry& entry);

}  // namespace terravane
