// Where a .vrscene goes: regular files replaced whole through a private temporary file beside
// the real file, devices and FIFOs written in place and never replaced, and no temporary file
// left behind whatever happens.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "Files.h"
#include "OutputFile.h"

namespace {

namespace fs = std::filesystem;

unsigned int modeOf(const fs::path& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

unsigned int newFileMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666u & ~static_cast<unsigned int>(mask);
}

// Reads a FIFO on its own thread while the writer runs, as a consumer would.
class FifoReader {
public:
    explicit FifoReader(const fs::path& path, size_t limit = std::string::npos)
        : thread([this, path, limit] {
              std::ifstream fifo(path, std::ios::binary);
              char c;
              while (text.size() < limit && fifo.get(c)) text += c;
          }) {}
    std::string finish() {
        thread.join();
        return text;
    }

private:
    std::string text;
    std::thread thread;
};

class OutputFileTest : public ::testing::Test {
protected:
    // Every entry under the directory, links as links, so a stray temporary file shows.
    std::vector<std::string> entries() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(directory))
            names.push_back(entry.path().lexically_relative(directory).string());
        std::sort(names.begin(), names.end());
        return names;
    }
    bool writeWhole(const fs::path& path, const std::string& text, std::string* error) {
        xrvell::OutputFile output(path.string());
        return output.open(error) && output.write(text, error) && output.commit(error);
    }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
};

TEST_F(OutputFileTest, RegularTargetsAreReplacedWholeBesideTheRealFile) {
    const struct {
        const char* name;
        void (*prepare)(const fs::path& directory);
        const char* output;  // what -o names
        const char* real;    // where the text must end up
        unsigned int mode;   // 0: a new file's
        std::vector<std::string> entries;
    } cases[] = {
        {"new file", [](const fs::path&) {}, "out.vrscene", "out.vrscene", 0, {"out.vrscene"}},
        {"existing file keeps its permissions",
         [](const fs::path& d) {
             writeFile(d / "out.vrscene", "an earlier render\n");
             fs::permissions(d / "out.vrscene", fs::perms(0640));
         },
         "out.vrscene",
         "out.vrscene",
         0640,
         {"out.vrscene"}},
        {"link to a file elsewhere",
         [](const fs::path& d) {
             fs::create_directories(d / "real");
             writeFile(d / "real/shot.vrscene", "an earlier render\n");
             fs::permissions(d / "real/shot.vrscene", fs::perms(0600));
             fs::create_directories(d / "links");
             fs::create_symlink("../real/shot.vrscene", d / "links/out.vrscene");
         },
         "links/out.vrscene",
         "real/shot.vrscene",
         0600,
         {"links", "links/out.vrscene", "real", "real/shot.vrscene"}},
        {"dangling link through a link",
         [](const fs::path& d) {
             fs::create_directories(d / "real");
             fs::create_symlink("middle.vrscene", d / "out.vrscene");
             fs::create_symlink(d / "real/new.vrscene", d / "middle.vrscene");
         },
         "out.vrscene",
         "real/new.vrscene",
         0,
         {"middle.vrscene", "out.vrscene", "real", "real/new.vrscene"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fs::remove_all(directory);
        fs::create_directories(directory);
        c.prepare(directory);
        const fs::path output = directory / c.output;
        const bool wasLink = fs::is_symlink(output);
        std::string error;
        ASSERT_TRUE(writeWhole(output, "xrVellVRay a {\n}\n", &error)) << error;
        EXPECT_EQ(contentsOf(directory / c.real), "xrVellVRay a {\n}\n");
        EXPECT_EQ(modeOf(directory / c.real), c.mode ? c.mode : newFileMode());
        EXPECT_EQ(fs::is_symlink(output), wasLink) << "a link stays a link";
        EXPECT_EQ(entries(), c.entries);
    }
}

TEST_F(OutputFileTest, AFifoIsWrittenInPlaceAndStaysAFifo) {
    const fs::path fifo = directory / "out.fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    FifoReader reader(fifo);
    xrvell::OutputFile output(fifo.string());
    std::string error;
    ASSERT_TRUE(output.open(&error)) << error;
    EXPECT_TRUE(output.writesInPlace());
    EXPECT_TRUE(output.write("frame 1\n", &error) && output.write("frame 2\n", &error));
    EXPECT_TRUE(output.commit(&error)) << error;
    EXPECT_EQ(reader.finish(), "frame 1\nframe 2\n");
    EXPECT_TRUE(fs::is_fifo(fifo));
    EXPECT_EQ(entries(), std::vector<std::string>{"out.fifo"});
}

TEST_F(OutputFileTest, WithoutACommitTheTargetStaysAsItWas) {
    writeFile(directory / "out.vrscene", "an earlier render\n");
    {
        xrvell::OutputFile output((directory / "out.vrscene").string());
        std::string error;
        ASSERT_TRUE(output.open(&error)) << error;
        EXPECT_FALSE(output.writesInPlace());
        ASSERT_TRUE(output.write("half a frame", &error)) << error;
        EXPECT_EQ(entries().size(), 2u) << "the temporary file is beside the target";
    }
    EXPECT_EQ(contentsOf(directory / "out.vrscene"), "an earlier render\n");
    EXPECT_EQ(entries(), std::vector<std::string>{"out.vrscene"});
}

TEST_F(OutputFileTest, TargetsThatCannotBeWrittenGiveTheSystemsReason) {
    fs::create_directories(directory / "adir");
    fs::create_symlink("loop.b", directory / "loop.a");
    fs::create_symlink("loop.a", directory / "loop.b");
    const struct {
        const char* output;
        const char* reason;
    } cases[] = {
        {"adir", "Is a directory"},
        {"no/such.vrscene", "No such file or directory"},
        {"loop.a", "Too many levels of symbolic links"},
    };
    for (const auto& c : cases) {
        xrvell::OutputFile output((directory / c.output).string());
        std::string error;
        EXPECT_FALSE(output.open(&error)) << c.output;
        EXPECT_EQ(error, c.reason);
    }
    EXPECT_EQ(entries(), (std::vector<std::string>{"adir", "loop.a", "loop.b"}));
}

TEST_F(OutputFileTest, AReaderThatGoesAwayIsAWriteError) {
    const fs::path fifo = directory / "out.fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    void (*previous)(int) = std::signal(SIGPIPE, SIG_IGN);
    FifoReader reader(fifo, 1);
    xrvell::OutputFile output(fifo.string());
    std::string error;
    ASSERT_TRUE(output.open(&error)) << error;
    const std::string frame(1 << 20, 'x');  // more than the pipe holds
    bool written = output.write(frame, &error);
    reader.finish();
    while (written) written = output.write(frame, &error);
    std::signal(SIGPIPE, previous);
    EXPECT_EQ(error, "Broken pipe");
}

}  // namespace
