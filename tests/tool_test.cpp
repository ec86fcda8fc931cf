// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-schedule run as a user runs it, from the transcripts in tests/tool/: each command's
// standard output, standard error and exit status, read whole. The transcripts say how they read.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Case {
    std::string where, command, out, err;
    int status = 0;
};

std::vector<Case> readTranscript(const fs::path& path) {
    std::vector<Case> cases;
    std::ifstream in(path);
    std::string prelude; // "% " lines: shell words every later command of the file begins with
    int number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.rfind("% ", 0) == 0) prelude += line.substr(2) + "\n";
        if (line.rfind("$ ", 0) == 0) {
            cases.push_back(
                {path.filename().string() + ":" + std::to_string(number), prelude + line.substr(2), "", ""});
            continue;
        }
        if (cases.empty() || line.empty() || line[0] == '#') continue;
        std::string text = line.size() > 2 ? line.substr(2) : "";
        if (text.size() >= 2 && text.compare(text.size() - 2, 2, "\\r") == 0) text.replace(text.size() - 2, 2, "\r");
        if (line[0] == '>') cases.back().out += text + "\n";
        if (line[0] == '!') cases.back().err += text + "\n";
        if (line[0] == '?') cases.back().status = std::stoi(text);
    }
    return cases;
}

std::string slurp(const fs::path& path) {
    std::ifstream in(path);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

TEST(ScheduleTool, PrintsWhatItsTranscriptsSay) {
    const fs::path tool = fs::path(KESTRUNE_SCHEDULE).parent_path();
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(KESTRUNE_TRANSCRIPTS)) {
        for (const Case& c : readTranscript(entry.path())) {
            // A folder of the case's own: tests may run side by side, and a case may leave files.
            const fs::path dir = fs::temp_directory_path() / ("kestrune-tool-" + std::to_string(getpid()));
            fs::remove_all(dir);
            fs::create_directories(dir);
            std::ofstream(dir / "case.sh") << c.command << "\n";
            const std::string shell =
                "cd " + dir.string() + " && PATH=" + tool.string() + ":$PATH bash case.sh > out 2> err";
            const int status = std::system(shell.c_str());
            EXPECT_EQ(WIFEXITED(status) ? WEXITSTATUS(status) : -1, c.status) << c.where;
            EXPECT_EQ(slurp(dir / "out"), c.out) << c.where;
            EXPECT_EQ(slurp(dir / "err"), c.err) << c.where;
            fs::remove_all(dir);
            ++count;
        }
    }
    EXPECT_GT(count, 40u) << "the transcripts were read";
}

} // namespace
