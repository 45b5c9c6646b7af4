// A project file's life: made with its sixteen tables, opened, saved (seven UPDATE statements), read; with the disk's
// syncing and without it.
#include <filesystem>

#include <benchmark/benchmark.h>

#include "support/jet_files.h"

namespace terravane {
namespace {

using namespace support;

/// The machine's disk, with nothing waiting for it.
class UnsyncedFileSystem : public DiskFileSystem {
  protected:
    void SyncFile(const std::string&) override {}
    void SyncFolder(const std::string&) override {}
};

/// A folder of its own, gone with the benchmark.
class Folder {
  public:
    Folder() { std::filesystem::create_directories(path_); }
    ~Folder() { std::filesystem::remove_all(path_); }
    std::string Path(const std::string& name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / "terravane-bench";
};

template <typename Files>
void CreateProject(benchmark::State& state)
{
    const Folder folder;
    const std::string path = folder.Path("new.mdb");
    const std::vector<std::string> statements = SampleStatements();
    Files files;
    for (auto step : state) {
        jet::NewDatabase database(files, path);
        for (const std::string& statement : statements) database.Execute(statement);
        database.Close();
        state.PauseTiming();
        std::filesystem::remove(path);
        state.ResumeTiming();
    }
}
BENCHMARK_TEMPLATE(CreateProject, UnsyncedFileSystem)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(CreateProject, DiskFileSystem)->Unit(benchmark::kMillisecond);

/// Opens, executes a save's statements and flushes; the file goes back to its seeds in between.
template <typename Files>
void SaveSheet(benchmark::State& state)
{
    const Folder folder;
    const std::string path = folder.Path("save.mdb");
    const Bytes seeds = NewFile(SampleStatements());
    const std::vector<std::string> save = SampleSave();
    Files files;
    UnsyncedFileSystem unsynced;
    for (auto step : state) {
        state.PauseTiming();
        unsynced.ReplaceWhole(path, seeds);
        state.ResumeTiming();
        jet::Connection connection;
        connection.Open(files, path);
        for (const std::string& statement : save) connection.Execute(statement);
        connection.Flush();
    }
}
BENCHMARK_TEMPLATE(SaveSheet, UnsyncedFileSystem)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(SaveSheet, DiskFileSystem)->Unit(benchmark::kMillisecond);

void OpenAndQuery(benchmark::State& state)
{
    MemoryFileSystem files;
    files.Put("p.mdb", NewFile(SampleStatements()));
    for (auto step : state) {
        jet::Connection connection;
        connection.Open(files, "p.mdb");
        benchmark::DoNotOptimize(connection.Execute("SELECT * from CBRSOIL'").RowCount());
    }
}
BENCHMARK(OpenAndQuery)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace terravane
