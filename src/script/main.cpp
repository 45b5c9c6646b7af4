// terravane-script: the program's forms driven by a script. See docs/script-runner.md.
#include <algorithm>
#include <iostream>

#include <CLI/CLI.hpp>

#include "runtime/machine.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"
#include "script/script_program.h"

namespace {

constexpr auto kAbout =
    "Drives the forms of Terravane without windows: the same forms, project files and pages as the desktop\n"
    "program, with a script in place of a keyboard.\n";

constexpr auto kLines =
    "A script has one command a line; words are separated by blanks, a text with blanks stands in double "
    "quotes,\n# begins a comment. Answers come on standard output, one JSON object a line.\n"
    "\n"
    "  answer TEXT                     the answer of the next question: a path, ok, cancel, yes, no\n"
    "  menu KEY                        a menu entry or an item of the tests' toolbar: mnuNew, mnuStd1\n"
    "  click CONTROL                   presses a button, an option, a box to tick, a label\n"
    "  tool BAR N                      presses button N of a toolbar, or the one with that key\n"
    "  check CONTROL on|off            ticks a box\n"
    "  set CONTROL TEXT                types into a box\n"
    "  choose CONTROL TEXT             picks an entry of a combo box\n"
    "  select LIST TEXT on|off         selects an entry of a list\n"
    "  type GRID ROW COL TEXT          types into a cell and presses Enter\n"
    "  put GRID ROW COL TEXT           writes a cell past its editor\n"
    "  key CONTROL KEY                 Enter, Esc, Up, Down, Left, Right or Tab\n"
    "  mouse GRID left|right ROW COL   presses a mouse button on a cell\n"
    "  tab CONTROL N                   shows tab N, from 0\n"
    "  undo, redo                      the last step back, and forth again\n"
    "  paste GRID ROW COL TEXT         puts lines of texts with tabs between into cells, from that one on\n"
    "  copy GRID ROW COL ROW COL       the texts of a block of cells\n"
    "  history                         every change of the open project\n"
    "  drafts, draft take|forget       what was typed and not saved; of the open sheet\n"
    "  close                           closes the form shown last\n"
    "  get CONTROL[.PROPERTY [N]]      a text or a state\n"
    "  get GRID ROW COL, dump GRID     a cell, all rows\n"
    "  forms                           the forms that are loaded\n"
    "  notices                         what was said without a box and is not settled\n"
    "  sql TEXT, brandsql TEXT         a statement on the project file, on the brand store\n"
    "  picture CONTROL                 what is drawn in a picture box\n"
    "  page preview, page print N      what is drawn on a page of the open report\n"
    "  render preview FILE.png [PCT]   the preview's page as a picture\n"
    "  echo TEXT, quit\n"
    "\n"
    "Exit status: 0 all lines ran, 1 a line was no command or named no control, 2 a run-time error under "
    "--strict.";

/// Noon of a day; a sentence for the user where the text is none.
std::string ReadDay(const std::string& text, std::optional<terravane::Moment>& noon)
try {
    noon = terravane::ParseDate(text) + std::chrono::hours(12);
    return {};
} catch (const terravane::RuntimeError&) {
    return "\"" + text + "\" is no date; write it as 2026-11-21.";
}

int Run(const terravane::ScriptOptions& options)
try {
    return terravane::RunScripts(options, std::cin, std::cout, std::cerr);
} catch (const terravane::RuntimeError& error) {
    std::cerr << "terravane-script: " << error.Description() << '\n';
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    terravane::BecomeTool();
    terravane::ScriptOptions options;
    std::string today;
    CLI::App app(kAbout, "terravane-script");
    app.footer(kLines);
    app.allow_windows_style_options(false);  // "/tmp/x" is a path everywhere
    app.failure_message([](const CLI::App*, const CLI::Error& failure) {
        return terravane::Printable(failure.what()) + "\nRun with --help for more information.\n";
    });
    app.add_option("FILE", options.files, "Scripts, run in their order; standard input where none is named");
    app.add_option("--home", options.home,
                   "The program's folder for this run (FileRecent.txt, BrandList); else a fresh private one")
        ->option_text("DIR");
    app.add_option("--brand", options.brand, "Another folder for the brand store")->option_text("DIR");
    app.add_option("--today", today, "The date that the forms see, at 12:00:00")->option_text("YYYY-MM-DD");
    app.add_flag("--strict", options.isStrict, "Stop at the first run-time error, with exit status 2");
    app.final_callback([&] {
        if (today.empty()) return;
        if (const auto complaint = ReadDay(today, options.now); !complaint.empty()) {
            throw CLI::ValidationError("--today", complaint);
        }
    });
    std::vector<std::string> arguments = terravane::Arguments(argc, argv);
    std::ranges::reverse(arguments);  // the parser takes them from the back
    try {
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 1;
    }
    return Run(options);
}
