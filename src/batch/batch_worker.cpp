#include "batch/batch_worker.h"

#include "batch/entry_json.h"
#include "batch/project_answer.h"
#include "batch/project_work.h"

namespace terravane {

namespace {

/// The answer for a project whose outputs would overwrite another one's.
ProjectAnswer NameClash(const std::string& owner)
{
    ProjectAnswer answer;
    answer.failure = "its outputs would have the names of those of " + owner;
    return answer;
}

}  // namespace

/// CBOR takes any bytes, also of a path that is no UTF-8.
std::string ToText(const ProjectRequest& request)
{
    Json json{{"path", request.project.path}, {"stem", request.project.stem}, {"clash", request.clash}};
    if (request.earlier) json["earlier"] = *request.earlier;
    const auto bytes = Json::to_cbor(json);
    return {bytes.begin(), bytes.end()};
}

ProjectRequest ReadRequest(const std::string& text)
{
    const Json json = Json::from_cbor(text);
    ProjectRequest request;
    json.at("path").get_to(request.project.path);
    json.at("stem").get_to(request.project.stem);
    json.at("clash").get_to(request.clash);
    if (json.contains("earlier")) request.earlier = json.at("earlier").get<JournalEntry>();
    return request;
}

BatchWorker::BatchWorker(const BatchOptions& options)
    : options_(options), brand_(options.brand.empty() ? FirstBrand() : ReadBrand(disk_, options.brand))
{}

std::string BatchWorker::Answer(const std::string& text)
{
    const ProjectRequest request = ReadRequest(text);
    if (!request.clash.empty()) return ToText(NameClash(request.clash));
    return ToText(WorkProject({disk_, outputs_}, request.project, options_, brand_, request.earlier));
}

}  // namespace terravane
