// Runs a target without a fuzzer: its corpus, then the corpus with random damage.
//
//   TARGET CORPUS_FOLDER MUTATIONS SEED
//
// An input that breaks a rule is left in the working folder.
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Fuzzing.h"
#include "Mutator.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr const char* FoundInput = "broken-rule.input";

// What a handler of the program's end can reach.
const std::string* runningInput = nullptr;

void KeepInput() noexcept
{
    if (std::FILE* file = runningInput ? std::fopen(FoundInput, "wb") : nullptr) {
        std::fwrite(runningInput->data(), 1, runningInput->size(), file);
        std::fclose(file);
        std::fprintf(stderr, "the input is in %s\n", FoundInput);
    }
    runningInput = nullptr;
}

extern "C" void KeepInputAndEnd(int)
{
    KeepInput();
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

void Run(const std::string& input)
{
    runningInput = &input;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    runningInput = nullptr;
}

// In the order of their names, so that a seed always stands for the same run.
std::vector<std::string> ReadCorpus(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files(std::filesystem::directory_iterator(folder), {});
    std::sort(files.begin(), files.end());
    std::vector<std::string> corpus;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return corpus;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER MUTATIONS SEED\n", argv[0]);
        return 2;
    }
    std::signal(SIGABRT, KeepInputAndEnd);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(KeepInput);
#endif
    const std::vector<std::string> corpus = ReadCorpus(argv[1]);
    if (corpus.empty()) {
        std::fprintf(stderr, "%s is empty\n", argv[1]);
        return 2;
    }
    for (const std::string& input : corpus)
        Run(input);
    const int mutations = std::atoi(argv[2]);
    fuzzing::Mutator mutator(static_cast<unsigned>(std::atoi(argv[3])), corpus);
    for (int run = 0; run < mutations; ++run)
        Run(mutator.Next());
    std::printf("%zu inputs of the corpus, %d mutations\n", corpus.size(), mutations);
    return 0;
}
