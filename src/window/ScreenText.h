// Texts on the screen: between the bytes that a control holds and the characters that a widget
// shows. Paths of the file system are not turned here, but by the toolkit.
#pragma once

#include <QFontMetrics>
#include <QSize>
#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

/// A visible stand-in for each control character, line end or mark that turns the direction of
/// writing: shown as they are, they would be invisible, cut a line off or reorder it. A stand-in is
/// a character that no UTF-8 gives, so it cannot be taken for any other: texts can be edited,
/// copied and undone with their stand-ins, and `WithoutStandIns` gives the same text back.
QString WithStandIns(QString text);
QString WithoutStandIns(QString shown);

/// A name for a message, with stand-ins and with places at which a long one can go on in the next
/// line.
QString NameInMessage(const QString& name);

/// UTF-8 is shown as such, with stand-ins. Bytes that are not UTF-8 as a whole are taken for
/// Windows-1252, in which any byte is some character.
QString ToScreen(std::string_view bytes);

/// What the user wrote, as UTF-8 and without stand-ins.
std::string FromScreen(const QString& shown);

/// A place in a text, counted in bytes, as a place in the text on show, and back. A place behind
/// the end counts as the end.
int ScreenPlace(std::string_view bytes, std::size_t place);
std::size_t BytePlace(std::string_view bytes, int place);

/// The room that such a text takes while it can be edited, its insertion point included.
QSize RoomToEdit(const QString& shown, const QFontMetrics& metrics);
