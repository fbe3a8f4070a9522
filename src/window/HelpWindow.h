// The help viewer: a window of its own that shows one topic of the help file.
#pragma once

#include <QTextBrowser>
#include <QTextDocument>
#include <memory>

#include "shell/Services.h"

/// The text of a topic out of a Markdown file in which a heading of the first level begins with
/// the topic's number; without that number. Null if the file has no such topic.
QString FindTopic(const QString& markdown, int number);

class HelpWindow : public HelpViewer {
public:
    /// Shows the topic in front of the other windows, or closes the viewer if one was opened.
    void ShowHelp(const CommonDialog& dialog) override;

private:
    void ShowTopic(const CommonDialog& dialog);

    std::unique_ptr<QTextDocument> document;  // on show in the viewer, which goes first
    std::unique_ptr<QTextBrowser> viewer;
    int topic = 0;  // the last one shown
};
