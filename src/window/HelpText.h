// Reads the help from the help file as a document without images, links or HTML. HelpFrame shows
// it.
#pragma once

#include <QString>
#include <QTextDocument>
#include <memory>

/// At most this many bytes of a help file are read; the document says so if there are more.
constexpr int HelpLimit = 64 * 1024;

/// The Markdown of one topic. A topic starts at a first-level heading that begins with its number;
/// the number is left out of the result. A null string if there is no such topic.
QString FindTopic(const QString& markdown, int number);

/// The topic as a document; if the file cannot be read or has no such topic, a sentence that says
/// so. Images and links are replaced by their text, and no other file is read. Only a regular file
/// can be read. Never null.
std::unique_ptr<QTextDocument> HelpDocument(const QString& path, int topic);
