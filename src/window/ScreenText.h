// Converts between the bytes in a control and the characters in a widget. Paths for the file system
// are converted by the toolkit, not here.
#pragma once

#include <QFontMetrics>
#include <QSize>
#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

/// Replaces each control character, line end and bidirectional control with a visible stand-in: on
/// the screen it would be invisible, cut off the line or reorder it. Stand-ins never occur in
/// decoded UTF-8, so texts can be edited, copied and undone with them, and `WithoutStandIns`
/// restores the original text.
QString WithStandIns(QString text);
QString WithoutStandIns(QString shown);

/// A file name for a message, with stand-ins and, if it is long, with places where the line can
/// break.
QString NameInMessage(const QString& name);

/// The bytes as text with stand-ins. They are decoded as UTF-8 or, if any of them is not valid
/// UTF-8, as Windows-1252, where every byte is a character.
QString ToScreen(std::string_view bytes);

/// The text of a widget as UTF-8, without stand-ins.
std::string FromScreen(const QString& shown);

/// Converts an offset in the bytes into one in the text that ToScreen makes of them (in UTF-16
/// units), and back. An offset after the end counts as the end; it must be neither negative nor
/// inside a character.
int ScreenPlace(std::string_view bytes, std::size_t place);
std::size_t BytePlace(std::string_view bytes, int place);

/// The size that a text needs in an edit box, in logical pixels, including the insertion point.
QSize RoomToEdit(const QString& shown, const QFontMetrics& metrics);
