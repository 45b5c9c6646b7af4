#include "script/script_program.h"

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "script/script_home.h"
#include "script/script_run.h"

namespace terravane {

namespace {

std::string BrandFolder(const std::string& named)
{
    return named.empty() ? std::string() : WithMark(FullPath(named));
}

void RunAll(ScriptRun& run, const std::vector<std::string>& files, std::istream& input)
{
    if (files.empty()) run.Run(input, "standard input");
    for (const std::string& file : files) {
        if (!run.HasEnded()) run.RunFile(file);
    }
}

}  // namespace

int RunScripts(const ScriptOptions& options, std::istream& input, std::ostream& answers, std::ostream& complaints)
{
    DiskFileSystem files;
    const ScriptHome home(files, options.home);
    AnswerWriter writer(answers);
    ScriptSurroundings surroundings(files, writer, options.now);
    Program program(surroundings, files, home.Path(), BrandFolder(options.brand));
    AddForms(program);
    Journal journal(program);
    if (!options.home.empty()) {
        journal.KeepHistory();
        journal.KeepDrafts(DraftsFolder(program));
    }
    program.Run("mdiBack.Form_Load", [&] { program.Show(kFrameName); });

    Session session{program, surroundings, writer, journal};
    ScriptRun run(session, complaints, options.isStrict);
    RunAll(run, options.files, input);
    return run.ExitStatus();
}

}  // namespace terravane
