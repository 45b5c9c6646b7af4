/// Whole runs of the script runner in a fresh folder, on 21 November 2026.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/machine.h"
#include "runtime/paths.h"
#include "script/script_program.h"

namespace terravane::testing {

/// What a run said and how it ended.
struct RunResult {
    int status = 0;
    std::vector<std::string> answers;
    std::string complaints;

    /// The answers as one text, a line each: what a failing comparison shows.
    std::string Text() const
    {
        std::string text;
        for (const auto& answer : answers) text += answer + '\n';
        return text;
    }
    /// The last answer; empty where there is none.
    std::string Last() const { return answers.empty() ? std::string() : answers.back(); }
};

/// A text as it stands in an answer; paths of some systems have marks that are escaped there.
inline std::string Json(const std::string& text)
{
    std::string json = "\"";
    for (const char letter : text) json.append(letter == '\\' || letter == '"' ? "\\" : "").push_back(letter);
    return json + '"';
}

class ScriptBench : public ::testing::Test {
  public:
    ScriptBench()
    {
        folder_ = WithMark(MakePrivateFolder("terravane-test"));
        options.home = folder_ + "home";
        options.now = MakeMoment(2026, 11, 21, 12);
    }
    ~ScriptBench() override { RemoveAll(folder_); }

    ScriptOptions options;
    const std::string& Folder() const { return folder_; }

    RunResult Run(const std::string& script)
    {
        std::istringstream input(script);
        std::ostringstream answers, complaints;
        RunResult result;
        result.status = RunScripts(options, input, answers, complaints);
        result.complaints = complaints.str();
        std::istringstream lines(answers.str());
        for (std::string line; std::getline(lines, line);) result.answers.push_back(line);
        return result;
    }

    /// Lines that create and choose the project TRVN_road.mdb and open the standard compaction of soil; they give one
    /// answer, the dialog's.
    std::string OpenedSheet() const
    {
        return "answer " + folder_ + "road.mdb\nmenu mnuNew\nset txtID R-17\nclick cmdOK\nmenu mnuStd1\n";
    }
    static constexpr std::size_t kOpeningAnswers = 1;

    /// The answers of lines on the opened sheet, on a new file each time.
    RunResult RunOnSheet(const std::string& lines)
    {
        std::filesystem::remove(folder_ + "TRVN_road.mdb");
        RunResult result = Run(OpenedSheet() + lines);
        if (result.answers.size() >= kOpeningAnswers) result.answers.erase(result.answers.begin());
        return result;
    }

    std::string Write(const std::string& name, const std::string& content)
    {
        std::ofstream(folder_ + name, std::ios::binary) << content;
        return folder_ + name;
    }
    std::string Read(const std::string& name) const
    {
        std::ifstream file(folder_ + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::string folder_;
};

}  // namespace terravane::testing
