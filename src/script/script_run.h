/// The running of scripts, line by line.
#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "script/commands.h"

namespace terravane {

class ScriptRun {
  public:
    /// complaints  takes a line for each line fault, "road.trv:12: There is no command "clik"."
    /// isStrict    the first run-time error ends the run
    ScriptRun(Session& session, std::ostream& complaints, bool isStrict)
        : session_(session), complaints_(complaints), isStrict_(isStrict)
    {}

    /// Runs the lines of one script. `name` stands in complaints.
    void Run(std::istream& script, const std::string& name);
    /// The same from a file; a complaint where it can't be read.
    void RunFile(const std::string& path);

    /// Whether no further line is to run: quit, the user's Exit, or a run-time error of a strict run.
    bool HasEnded() const;
    /// 0 all lines ran, 1 a line was none, 2 a run-time error of a strict run.
    int ExitStatus() const;

  private:
    void RunLine(const std::string& line, const std::string& place);
    void Complain(const std::string& place, const std::string& sentence);
    bool HasFailedStrictly() const { return isStrict_ && session_.surroundings.HasFailed(); }

    Session& session_;
    std::ostream& complaints_;
    bool isStrict_;
    bool hasFaults_ = false;
};

}  // namespace terravane
