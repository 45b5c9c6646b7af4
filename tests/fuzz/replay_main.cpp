// Runs a fuzz target without a fuzzer: over its corpus, then over changed copies of it for a fixed number of rounds.
//
//   fuzz_jet <folder of the corpus> <rounds>
//
// The changes come from a generator with a fixed seed, so that a failure comes back; the input that broke the target
// stands in the working folder as "<program>.last" while it runs.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Input = std::vector<std::uint8_t>;

std::vector<Input> ReadCorpus(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Input> inputs;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return inputs;
}

class Mutator {
  public:
    std::size_t Below(std::size_t end) { return end == 0 ? 0 : random_() % end; }

    /// One to eight changes: a byte, a bit, a piece copied elsewhere, a piece taken out or put in twice, the end cut.
    Input Changed(Input input)
    {
        for (std::size_t i = 0, count = 1 + Below(8); i < count && !input.empty(); ++i) ChangeOnce(input);
        return input;
    }

  private:
    void ChangeOnce(Input& input)
    {
        const std::size_t at = Below(input.size());
        const std::size_t length = Below(std::min<std::size_t>(input.size() - at, 64));
        const auto begin = input.begin() + static_cast<std::ptrdiff_t>(at);
        const auto end = begin + static_cast<std::ptrdiff_t>(length);
        switch (Below(8)) {
            case 0:
                input.resize(at);
                break;
            case 1:
                input.erase(begin, end);
                break;
            case 2: {
                const Input piece(begin, end);
                input.insert(input.begin() + static_cast<std::ptrdiff_t>(at), piece.begin(), piece.end());
                break;
            }
            case 3:
                std::copy(begin, end, input.begin() + static_cast<std::ptrdiff_t>(Below(input.size() - length)));
                break;
            case 4:
                input[at] = static_cast<std::uint8_t>(input[at] ^ 1U << Below(8));
                break;
            default:
                input[at] = static_cast<std::uint8_t>(Below(256));
        }
    }

    std::mt19937 random_{1};
};

/// Where the input that runs is kept, so that a crash leaves it behind. The file stays open: a file system may write to
/// the disk, and wait for it, whenever one that was cut is closed.
class Keeper {
  public:
    explicit Keeper(std::string path) : path_(std::move(path)), file_(path_, std::ios::binary | std::ios::trunc) {}

    void Keep(const Input& input)
    {
        file_.seekp(0);
        file_.write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size())).flush();
        std::filesystem::resize_file(path_, input.size());
    }

    void Remove()
    {
        file_.close();
        std::filesystem::remove(path_);
    }

  private:
    std::string path_;
    std::ofstream file_;
};

void Run(const Input& input, Keeper& keeper)
{
    keeper.Keep(input);
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 3) return EXIT_FAILURE;
    const std::vector<Input> corpus = ReadCorpus(argv[1]);
    if (corpus.empty()) {
        std::fprintf(stderr, "no corpus in %s\n", argv[1]);
        return EXIT_FAILURE;
    }
    Keeper keeper{std::string(argv[0]) + ".last"};
    for (const Input& input : corpus) Run(input, keeper);
    Mutator mutator;
    const int rounds = std::atoi(argv[2]);
    for (int round = 0; round < rounds; ++round) Run(mutator.Changed(corpus[mutator.Below(corpus.size())]), keeper);
    keeper.Remove();
    std::printf("%zu inputs, %d changed copies: no failure\n", corpus.size(), rounds);
    return EXIT_SUCCESS;
}
