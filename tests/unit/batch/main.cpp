// The tests, and the worker that some of them start.
#include <algorithm>
#include <csignal>

#include <gtest/gtest.h>

#include "batch/worker_process.h"
#include "runtime/machine.h"
#include "unit/batch/test_worker.h"

namespace terravane {

std::string TestWork(const std::string& request)
{
    const std::size_t blank = request.find(' ');
    const std::string name = request.substr(0, blank);
    const int number = std::stoi(request.substr(blank + 1));
    if (name == "letters") return std::string(5'000'000, number == 0 ? 'a' : 'b');
    if (name == "crash-at-three" && number == 3) std::raise(SIGABRT);
    return std::to_string(number * number);
}

}  // namespace terravane

int main(int argc, char** argv)
{
    const auto arguments = terravane::Arguments(argc, argv);
    if (std::ranges::find(arguments, terravane::kWorkerArgument) != arguments.end()) {
        terravane::BecomeTool();
        terravane::ServeRequests(terravane::TestWork);
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
