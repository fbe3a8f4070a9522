// The text of the help: out of the help file, as a document that holds nothing but text. Where it
// is shown is in HelpFrame.
#pragma once

#include <QString>
#include <QTextDocument>
#include <memory>

/// No more of a help file is read, in bytes; the document says so of a longer one.
constexpr int HelpLimit = 64 * 1024;

/// The text of a topic out of a Markdown file in which a heading of the first level begins with
/// the topic's number; without that number. Null if the file has no such topic.
QString FindTopic(const QString& markdown, int number);

/// The topic as a document, or a sentence that says why there is none. Pictures and links are left
/// out but for their text, and no other file is read. What is no regular file is not there.
std::unique_ptr<QTextDocument> HelpDocument(const QString& path, int topic);
