#include <QTextBrowser>

#include "WindowTest.h"
#include "window/FileChooser.h"
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
    WriteBytes(qgetenv("XDG_CONFIG_HOME").toStdString() + "/Tephrex3.ini",
               "DataPath=/top\n[Else]\nDataPath=/else\n; c=d\n[Settings]\nDataPath=" + odd);
    EXPECT_EQ(read("DataPath"), odd);
    EXPECT_EQ(read("Other"), "1");
    EXPECT_EQ(read("Missing"), "none");
}

TEST(FileChooserTest, EachFilterNamesItsPatternsOnce) {
    EXPECT_EQ(NameFilters("Recorder Files (*.rec)|*.rec;*.REC|Any|*|").join('|'),
              "Recorder Files (*.rec *.REC)|Any (*)");
}

TEST(HelpWindowTest, ShowsTheTopicOrTellsThatThereIsNone) {
    TempFolder folder;
    WriteBytes(folder / "a.hlp", "94 ahead\n# 9 Nine\nnine\n# 94 Topic\ntext\n## 9 Part\nend\n");
    HelpWindow help;
    Form form;
    CommonDialog dialog(form, "CD1");
    const auto show = [&](int command, const std::string& file, int topic) {
        dialog.HelpCommand = command;
        dialog.HelpFile = file;
        dialog.HelpContext = topic;
        help.ShowHelp(dialog);
        QTextBrowser* viewer = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            viewer = viewer != nullptr ? viewer : qobject_cast<QTextBrowser*>(widget);
        }
        return viewer != nullptr && viewer->isVisible() ? viewer->toPlainText() : QString();
    };
    EXPECT_EQ(show(CommonDialog::Quit, "", 94), "");
    EXPECT_EQ(show(CommonDialog::ShowTopic, (folder / "") + "\\a.hlp", 94),
              "Topic\ntext\n9 Part\nend");
    EXPECT_TRUE(show(CommonDialog::ShowTopic, folder / "a.hlp", 4).contains("no topic 4"));
    EXPECT_TRUE(show(CommonDialog::ShowTopic, folder / "no.hlp", 94).contains("cannot be read"));
    EXPECT_EQ(show(CommonDialog::Quit, "", 94), "");
}
