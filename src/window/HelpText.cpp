#include "window/HelpText.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextTable>
#include <vector>

#include "window/ScreenText.h"

namespace {

// The toolkit sets Markdown tables too tight to read easily.
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

std::vector<Reference> ImagesAndLinks(const QTextDocument& document) {
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

// The toolkit would load images from wherever they are as soon as it lays out the document.
void KeepTextOnly(QTextDocument& document) {
    std::vector<Reference> references = ImagesAndLinks(document);
    QTextCursor cursor(&document);
    for (; !references.empty(); references.pop_back()) {  // last first: offsets stay valid
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
    all.beginEditBlock();  // otherwise each change lays out the whole paragraph again
    const QTextDocument::MarkdownFeatures tables = QTextDocument::MarkdownDialectGitHub;
    document.setMarkdown(markdown, tables | QTextDocument::MarkdownNoHTML);
    KeepTextOnly(document);
    all.endEditBlock();
    SpaceTables(document);  // only now does the document contain them
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
    const QStringList topics = markdown.split(mark).mid(1);  // text before the first heading
    for (const QString& topic : topics) {
        if (topic.section(blank, 0, 0) == QString::number(number)) {
            return "# " + topic.section(blank, 1);
        }
    }
    return {};
}

std::unique_ptr<QTextDocument> HelpDocument(const QString& path, int topic) {
    // Filling a document is much faster before it is shown.
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentMargin(12);
    Fill(*document, path, topic);
    return document;
}
