#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QApplication>

#include "../TestForm.h"
#include "window/FileDevice.h"
#include "window/IniSettings.h"

TEST(IniSettingsTest, TheUsersValueComesFirstAndIsReadByteForByte) {
    const std::string system = qgetenv("XDG_CONFIG_DIRS").toStdString();
    std::filesystem::create_directories(system);
    WriteBytes(system + "/Tephrex3.ini", "[SETTINGS]\r\ndatapath=/system\r\nOther=1]\r\n");
    const auto read = [](const std::string& key) {
        return IniSettings().Read("Tephrex3\\Settings", key, "none");
    };
    EXPECT_EQ(read("DataPath"), "/system");
    const std::string odd = "/d a, \"t\"\\x41;#=\xE9\xC3\xA9 ";
    const std::string own = qgetenv("XDG_CONFIG_HOME").toStdString() + "/Tephrex3.ini";
    WriteBytes(
        own,
        "DataPath=/top\n[Else]\nDataPath=/else\n[Settings]\nOther\n;DataPath=no\nDataPath=" + odd);
    EXPECT_EQ(read("DataPath"), odd);
    EXPECT_EQ(read("Other") + read("Missing"), "1]none");
    std::filesystem::remove(own);
    mkfifo(own.c_str(), 0600);
    EXPECT_EQ(read("DataPath"), "/system") << "without waiting for the pipe";
}

// Replaces the C library's: a folder whose name is a number fails with that error.
extern "C" int fsync(int file) {
    const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file));
    errno = std::atoi(path.filename().c_str());
    return errno != 0 ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}

TEST(FileDeviceTest, AFileAndItsFolderAreFlushedAndADeviceWithoutFlushCountsAsFlushed) {
    const TempFolder folder;
    WriteBytes(folder / "a.rec", "");
    for (const int error : {EIO, ENOSPC, EINVAL, EROFS, ENOTSUP, ENOSYS}) {
        const std::string failing = folder / std::to_string(error);
        std::filesystem::create_directories(failing);
        WriteBytes(failing + "/a.rec", "");
        EXPECT_EQ(FileDevice().Flush(failing + "/a.rec"), error != EIO && error != ENOSPC);
    }
    std::filesystem::create_symlink("a.rec", folder / "link.rec");
    std::filesystem::create_symlink("/dev/full", folder / "full.rec");
    const std::pair<const char*, bool> rows[] = {
        {"a.rec", true}, {"link.rec", true}, {"full.rec", true}, {"no.rec", false}, {"", false}};
    for (const auto& [name, flushed] : rows) {
        EXPECT_EQ(FileDevice().Flush(folder / name), flushed) << name;
    }
}
