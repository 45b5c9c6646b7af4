/// The program as it stands behind the splash, without windows: a disk in memory, surroundings that answer what the
/// test told them, the real forms, and for the sheets that only the order of closing matters for, bare ones.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/form_makers.h"
#include "app/frmProject.h"
#include "app/mdiBack.h"
#include "jet/connection.h"
#include "laboratory/tests.h"
#include "runtime/memory_file_system.h"
#include "sheets/pattern/test_sheet.h"
#include "store/new_stores.h"
#include "support/bare_description.h"

namespace terravane::testing {

/// Answers file dialogs from a queue (an empty one cancels) and writes down everything that it was asked.
struct NotingSurroundings : Surroundings {
    std::deque<std::string> paths;
    std::vector<FileQuestion> questions;
    std::vector<Message> messages;
    std::vector<std::string> documents;
    std::vector<RuntimeError> failures;
    bool hasEnded = false;

    MessageAnswer Show(const Message& message) override
    {
        messages.push_back(message);
        return MessageAnswer::Ok;
    }
    std::optional<std::string> AskFile(const FileQuestion& question) override
    {
        questions.push_back(question);
        if (paths.empty()) return std::nullopt;
        std::string path = paths.front();
        paths.pop_front();
        return path;
    }
    std::optional<PrintTarget> AskPrinter() override { return std::nullopt; }
    Moment Now() const override { return MakeMoment(2026, 11, 21, 12); }
    void OpenDocument(const std::string& path) override { documents.push_back(path); }
    void Fail(const std::string&, const RuntimeError& error) override { failures.push_back(error); }
    void End() override { hasEnded = true; }
};

/// A sheet without a method that notes its opening and closing.
struct NotedSheet : TestSheet {
    NotedSheet(Program& owner, const std::string& name, std::vector<std::string>& log)
        : TestSheet(owner, support::BareDescription(name)), log_(log)
    {}
    void Form_Load() override
    {
        testAtLoad = program.CurrentTest;
        log_.push_back("+" + Name());
    }
    void Form_Unload() override { log_.push_back("-" + Name()); }
    void cmdCal_Click() override {}

    Test testAtLoad = Test::None;

  private:
    std::vector<std::string>& log_;
};

struct AppBench {
    NotingSurroundings surroundings;
    MemoryFileSystem files;
    std::vector<std::string> log;  // "+form" loaded, "-form" unloaded, of the noted sheets
    Program program;

    explicit AppBench(const std::string& applicationPath = "/home") : program(surroundings, files, applicationPath)
    {
        files.MakeFolders("/home/");
        files.MakeFolders("/jobs/");
        WriteFirstContent(files, "/home/BrandList/");
        AddForms(program);
    }

    /// In place of all sheets, such as only note their loading and unloading.
    void NoteSheets()
    {
        for (const laboratory::Sheet* sheet : laboratory::SheetsClosedBeforeFile()) {
            const std::string name(sheet->form);
            program.AddForm(name,
                            [this, name](Program& owner) { return std::make_unique<NotedSheet>(owner, name, log); });
        }
    }

    /// All of them loaded, the log empty.
    void LoadNotedSheets()
    {
        NoteSheets();
        for (const laboratory::Sheet* sheet : laboratory::SheetsClosedBeforeFile()) program.Load(sheet->form);
        log.clear();
    }

    mdiBack& ShowFrame()
    {
        program.Run("start", [this] { program.Show(kFrameName); });
        return Frame();
    }
    mdiBack& Frame() { return program.Get<mdiBack>(kFrameName); }
    frmProject& GeneralData() { return program.Get<frmProject>("frmProject"); }

    void Press(MenuEntry& entry, const std::string& path = {})
    {
        if (!path.empty()) surroundings.paths.push_back(path);
        entry.Press();
    }

    std::string RecentFile() const
    {
        const Bytes content = files.Content("/home/FileRecent.txt");
        return {content.begin(), content.end()};
    }

    /// A column of the first row of a project file's table.
    std::string Stored(const std::string& path, const std::string& table, const std::string& column)
    {
        jet::Connection connection;
        connection.Open(files, path);
        return connection.Execute("SELECT * from " + table + "'").Fields(column);
    }
};

/// What the log of noted sheets holds when these were closed, one after the other.
inline std::vector<std::string> Closed(std::span<const laboratory::Sheet* const> sheets)
{
    std::vector<std::string> log;
    for (const laboratory::Sheet* sheet : sheets) log.push_back(std::string("-").append(sheet->form));
    return log;
}

/// No message and no reported failure so far.
inline void ExpectSilence(const AppBench& bench)
{
    EXPECT_TRUE(bench.surroundings.messages.empty()) << bench.surroundings.messages.front().text;
    EXPECT_TRUE(bench.surroundings.failures.empty()) << bench.surroundings.failures.front().Description();
}

}  // namespace terravane::testing
