#include <sys/stat.h>

#include <QApplication>

#include "../TestForm.h"
#include "window/FileDevice.h"
#include "window/HelpWindow.h"
#include "window/IniSettings.h"

TEST(IniSettingsTest, AValueArrivesByteForByte) {
    const std::string system = qgetenv("XDG_CONFIG_DIRS").toStdString();
    std::filesystem::create_directories(system);
    WriteBytes(system + "/Tephrex3.ini", "[Settings]\r\nDataPath=/system\r\nOther=1\r\n");
    const auto read = [](const std::string& key) {
        return IniSettings().Read("Tephrex3\\Settings", key, "none");
    };
    EXPECT_EQ(read("DataPath"), "/system");
    const std::string odd = "/d a, \"t\"\\x41;#=\xE9\xC3\xA9 ";
    const std::string own = qgetenv("XDG_CONFIG_HOME").toStdString() + "/Tephrex3.ini";
    WriteBytes(own, "DataPath=/top\n[Else]\nDataPath=/else\n; c=d\n[Settings]\nDataPath=" + odd);
    EXPECT_EQ(read("DataPath"), odd);
    EXPECT_EQ(read("Other") + read("Missing"), "1none");
    std::filesystem::remove(own);
    mkfifo(own.c_str(), 0600);
    EXPECT_EQ(read("DataPath"), "/system") << "and no wait for the pipe";
}

TEST(HelpWindowTest, ShowsTheTopicOrTellsThatThereIsNone) {
    const QString help = "94 ahead\n# 9 Nine\nnine\n# 94 Topic\ntext\n## 9 Part\nend\n";
    EXPECT_EQ(FindTopic(help, 94), "# Topic\ntext\n## 9 Part\nend\n");
    EXPECT_TRUE(FindTopic(help, 4).isNull());
    Form form;
    CommonDialog dialog(form, "CD1");
    HelpWindow viewer;
    dialog.HelpFile = "/no\\where.hlp";
    dialog.HelpCommand = CommonDialog::ShowTopic;
    viewer.ShowHelp(dialog);
    auto* const shown = qobject_cast<QTextBrowser*>(QApplication::topLevelWidgets().value(0));
    ASSERT_TRUE(shown && shown->isVisible());
    EXPECT_EQ(shown->toPlainText(), "The help file cannot be read: /no/where.hlp");
    const QTextDocument* const document = shown->document();
    shown->showMinimized();
    viewer.ShowHelp(dialog);
    EXPECT_FALSE(shown->isMinimized());
    EXPECT_EQ(shown->document(), document) << "at the place that the reader has reached";
}

TEST(FileDeviceTest, AFileIsFlushedAndWhatKnowsNoFlushCountsAsFlushed) {
    const TempFolder folder;
    WriteBytes(folder / "a.rec", "");
    std::filesystem::create_symlink("a.rec", folder / "link.rec");
    std::filesystem::create_symlink("/dev/full", folder / "full.rec");
    const std::pair<const char*, bool> rows[] = {
        {"a.rec", true}, {"link.rec", true}, {"full.rec", true}, {"no.rec", false}, {"", false}};
    for (const auto& [name, flushed] : rows) {
        EXPECT_EQ(FileDevice().Flush(folder / name), flushed) << name;
    }
}
