// Disks that fail at any call and after any byte, and unusual files and names.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "TestForm.h"

namespace {

bool closingFails = false;  // whether the next fclose fails

}  // namespace

extern "C" int fclose(FILE* file) {
    static const auto close = reinterpret_cast<int (*)(FILE*)>(dlsym(RTLD_NEXT, "fclose"));
    const int result = close(file);
    return std::exchange(closingFails, false) ? EOF : result;
}

namespace {

// A file that gives five bytes a call. Call `failing` fails, and in ways 1 and 3 all later calls
// too: in ways 0 and 1 by the result, in ways 2 and 3 by an exception.
struct Disk : std::streambuf {
    std::string bytes;
    std::size_t failing, way, calls = 0, at = 0;

    Disk(std::string content, std::size_t failingCall, std::size_t itsWay)
        : bytes(std::move(content)), failing(failingCall), way(itsWay) {}
    bool Fails() {
        const bool fails = calls == failing || (way % 2 != 0 && calls > failing);
        ++calls;
        return fails && way > 1 ? throw std::ios_base::failure("broken medium") : fails;
    }
    std::streamsize xsgetn(char* to, std::streamsize) override {
        const std::size_t given = Fails() ? 0 : bytes.copy(to, 5, at);
        at += given;
        return static_cast<std::streamsize>(given);
    }
    std::streamsize xsputn(const char* from, std::streamsize size) override {
        const std::streamsize taken = Fails() ? size / 2 : size;
        bytes.append(from, static_cast<std::size_t>(taken));
        return taken;
    }
    int sync() override { return Fails() ? -1 : 0; }
};

class DiskFaultsTest : public FormTest {
protected:
    const std::string test = folder / "test.rec", copy = folder / "copy.rec";
    std::string whole;
    const std::ptrdiff_t descriptors = Descriptors();

    void SetUp() override {
        FormTest::SetUp();
        Open({GoodPhase(EruptionType::Hawaiian), GoodPhase(EruptionType::Plinian)}, {300});
        whole = ReadBytes(test);
    }
    void TearDown() override { EXPECT_EQ(Descriptors(), descriptors); }

    static std::ptrdiff_t Descriptors() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }
    static long BytesRead() {
        std::ifstream file("/proc/self/io");
        std::string word;
        long bytes = 0;
        file >> word >> bytes;
        return bytes;
    }
    // Whether Open or Save succeeds with a file of that name: then Save is disabled.
    bool Succeeds(CommandButton& button, const std::string& path) {
        form.txtWind.PressKey("10");
        platform.answers = {path};
        button.Press();
        return !form.Command2.Enabled();
    }
    bool Opens(const std::string& path) { return Succeeds(form.cmdOpen, path); }
    bool Saves(const std::string& path) { return Succeeds(form.Command2, path); }
    bool SavesWithin(decltype(RLIMIT_FSIZE) resource, rlim_t amount) {
        rlimit before{};
        getrlimit(resource, &before);
        const rlimit lower{amount, before.rlim_max};
        setrlimit(resource, &lower);
        const bool saved = Saves(copy);
        setrlimit(resource, &before);
        return saved;
    }
};

TEST_F(DiskFaultsTest, AFailedCallEndsAReadOrWriteAndWhatCameBeforeIsKept) {
    const auto broken = std::make_unique<EditorState>(), cut = std::make_unique<EditorState>();
    form.StratFile.assign(40000, 'x');  // too much for one call
    Disk good("", whole.size(), 0);
    ASSERT_TRUE(WriteRecord(good, form));
    for (std::size_t n = 0; n < 4 * (whole.size() / 5); ++n) {
        const std::size_t way = n % 4, call = n / 4;
        *broken = *cut = EditorState{};
        Disk disk(whole, call, way), full("", call % good.calls, way);
        const std::string start = whole.substr(0, 5 * call);
        // An exception loses the unfinished item.
        std::stringbuf end(way > 1 ? start.substr(0, start.find_last_of(",\n") + 1) : start);
        EXPECT_FALSE(ReadRecord(disk, *broken) || ReadRecord(end, *cut)) << way << ' ' << call;
        EXPECT_TRUE(broken->LoadedPhases == cut->LoadedPhases) << way << ' ' << call;
        EXPECT_TRUE(!WriteRecord(full, form) && good.bytes.starts_with(full.bytes)) << n;
    }
}

TEST_F(DiskFaultsTest, AFullDiskKeepsWhatFitAndALaterSaveIsComplete) {
    std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_FALSE(SavesWithin(RLIMIT_NOFILE, 0));
    for (std::size_t room = 0; room <= whole.size(); ++room) {
        EXPECT_EQ(SavesWithin(RLIMIT_FSIZE, room), room == whole.size());
        ASSERT_EQ(ReadBytes(copy), whole.substr(0, room));
    }
    EXPECT_EQ(platform.messages.size(), whole.size() + 1);
}

TEST_F(DiskFaultsTest, ASaveSucceedsOnlyIfTheFileIsFlushedToItsDevice) {
    for (const bool reaches : {false, true}) {
        platform.flush = [&](const std::string& path) {
            EXPECT_EQ(ReadBytes(path), whole);
            return reaches;
        };
        EXPECT_EQ(Saves(copy), reaches);
        EXPECT_EQ(platform.messages.size(), 1U) << "Recorder file save error";
    }
}

TEST_F(DiskFaultsTest, AFileThatCannotBeClosedIsNotSaved) {
    closingFails = true;
    EXPECT_FALSE(Saves(copy));
    EXPECT_TRUE(Saves(copy));
}

TEST_F(DiskFaultsTest, ATerminalIsNotReadAsARecord) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    const std::string record = "a,b\nc,0,20\n";
    ASSERT_EQ(write(terminal, record.data(), record.size()), ssize_t(record.size()));
    EXPECT_FALSE(Opens(ptsname(terminal)));
    close(terminal);
}

TEST_F(DiskFaultsTest, FilesThatCannotBeReadOrWrittenFailWithoutWaiting) {
    ASSERT_EQ(chmod((folder / "").c_str(), 0777), 0);
    ASSERT_TRUE(geteuid() != 0 || seteuid(65534) == 0);  // permissions do not bind root
    WriteBytes(folder / "locked", whole);
    chmod((folder / "locked").c_str(), 0);
    mkdir((folder / "shut").c_str(), 0555);
    mkfifo((folder / "pipe").c_str(), 0666);
    std::filesystem::create_symlink("loop", folder / "loop");
    std::filesystem::create_symlink("/dev/full", folder / "full");
    for (const char* name : {"locked", "shut", "shut/a", "pipe", "loop", "full", "none/a"}) {
        EXPECT_FALSE(Opens(folder / name) || Saves(folder / name)) << name;
    }
    EXPECT_FALSE(Opens("/proc/self/mem"));  // a regular file whose first byte cannot be read
    EXPECT_EQ(platform.messages.size(), 7U);
    EXPECT_EQ(seteuid(getuid()), 0);
}

TEST_F(DiskFaultsTest, AFileIsReadNoFurtherThanItsRecord) {
    WriteBytes(folder / "endless", "\"\"");
    for (const std::string& path : {folder / "endless", test}) {
        std::filesystem::resize_file(path, std::uintmax_t{1} << 31U);
        rusage before{}, after{};
        getrusage(RUSAGE_SELF, &before);
        const long read = BytesRead();
        EXPECT_EQ(Opens(path), path == test);  // only this one begins with a record
        EXPECT_LT(BytesRead() - read, 128 * 1024);
        getrusage(RUSAGE_SELF, &after);
        EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024);
    }
    Disk disk(whole + std::string(9999, ' '), 9999, 0);
    EXPECT_TRUE(ReadRecord(disk, form));
    EXPECT_LT(disk.at, whole.size() + 5);
}

TEST_F(DiskFaultsTest, NamesOfAnyBytesAreKept) {
    const std::string reference = "x\r\n,\xE9\xFF\n.str", odd = folder / "a\n \"\\\xE9\xFF.rec";
    platform.answers = {reference, odd, odd};
    form.cmdChange.Press();
    form.Command2.Press();
    form.StratFile.clear();
    form.cmdOpen.Press();
    EXPECT_EQ(form.EditStratFile, reference);
}

}  // namespace
