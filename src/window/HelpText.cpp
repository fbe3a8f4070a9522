#include "window/HelpText.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextTable>
#include <vector>

#include "window/ScreenText.h"

namespace {

// The toolkit sets the tables of Markdown too tight to be read with ease.
void SpaceTables(QTextDocument& document) {
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorderCollapse(true);
            format.setCellPadding(4);
            format.setBottomMargin(12);
            table->setFormat(format);
        }
    }
}

struct Reference {
    int start;
    int end;
    QTextCharFormat format;
};

std::vector<Reference> PicturesAndLinks(const QTextDocument& document) {
    std::vector<Reference> found;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment text = part.fragment();
            if (text.charFormat().isImageFormat() || text.charFormat().isAnchor()) {
                found.push_back(
                    {text.position(), text.position() + text.length(), text.charFormat()});
            }
        }
    }
    return found;
}

QTextCharFormat PlainFormat(QTextCharFormat format) {
    for (const auto property :
         {QTextFormat::ObjectType, QTextFormat::IsAnchor, QTextFormat::AnchorHref,
          QTextFormat::AnchorName, QTextFormat::TextUnderlineStyle, QTextFormat::ForegroundBrush,
          QTextFormat::ImageName, QTextFormat::ImageAltText}) {
        format.clearProperty(property);
    }
    return format;
}

// The toolkit would load pictures from wherever they are as soon as it lays out the document.
void KeepTextOnly(QTextDocument& document) {
    std::vector<Reference> references = PicturesAndLinks(document);
    QTextCursor cursor(&document);
    for (; !references.empty(); references.pop_back()) {  // from the end, or the places would move
        const auto& [start, end, format] = references.back();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        const QString text = format.isImageFormat()
                                 ? format.stringProperty(QTextFormat::ImageAltText)
                                 : cursor.selectedText();
        cursor.insertText(text, PlainFormat(format));
    }
}

void ShowMarkdown(QTextDocument& document, const QString& markdown) {
    QTextCursor all(&document);
    all.beginEditBlock();  // or each piece of a long paragraph would cost as much as the whole
    const QTextDocument::MarkdownFeatures tables = QTextDocument::MarkdownDialectGitHub;
    document.setMarkdown(markdown, tables | QTextDocument::MarkdownNoHTML);
    KeepTextOnly(document);
    all.endEditBlock();
    SpaceTables(document);  // which are there now
}

void AddParagraph(QTextDocument& document, const QString& text) {
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.insertBlock(QTextBlockFormat(), QTextCharFormat());
    end.insertText(text);
}

void Fill(QTextDocument& document, const QString& path, int number) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        document.setPlainText("The help file cannot be read: " + NameInMessage(path));
        return;
    }
    const QString topic = FindTopic(QString::fromUtf8(file.read(HelpLimit)), number);
    if (topic.isNull()) {
        document.setPlainText(QString("The help file has no topic %1: ").arg(number) +
                              NameInMessage(path));
    } else {
        ShowMarkdown(document, topic);
    }
    if (!file.atEnd()) {
        AddParagraph(document, "The help file is longer than 64 KiB. The rest is not shown.");
    }
}

}  // namespace

QString FindTopic(const QString& markdown, int number) {
    static const QRegularExpression mark("^# +", QRegularExpression::MultilineOption);
    static const QRegularExpression blank("\\s");
    const QStringList topics = markdown.split(mark).mid(1);  // what comes before is no topic
    for (const QString& topic : topics) {
        if (topic.section(blank, 0, 0) == QString::number(number)) {
            return "# " + topic.section(blank, 1);
        }
    }
    return {};
}

std::unique_ptr<QTextDocument> HelpDocument(const QString& path, int topic) {
    // A document that is not on show yet is filled much faster.
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentMargin(12);
    Fill(*document, path, topic);
    return document;
}
