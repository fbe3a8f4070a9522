#include "window/HelpWindow.h"

#include <QFile>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextTable>
#include <utility>

#include "form/Controls.h"

namespace {

std::unique_ptr<QTextBrowser> NewViewer() {
    auto viewer = std::make_unique<QTextBrowser>();
    viewer->setObjectName("HelpViewer");
    viewer->setWindowTitle("TephrexEdit Help");
    viewer->setAttribute(Qt::WA_QuitOnClose, false);  // the program ends with the form
    viewer->setOpenLinks(false);
    viewer->resize(640, 700);
    QObject::connect(new QShortcut(Qt::Key_Escape, viewer.get()), &QShortcut::activated,
                     viewer.get(), &QWidget::close);
    return viewer;
}

QString FileName(const CommonDialog& dialog) {
    return QFile::decodeName(QByteArray::fromStdString(dialog.HelpFile)).replace('\\', '/');
}

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

// Fills an empty document with the topic, or with a sentence that tells why there is none.
void Fill(QTextDocument& document, const CommonDialog& dialog) {
    QFile file(FileName(dialog));
    if (!file.open(QIODevice::ReadOnly)) {
        document.setPlainText("The help file cannot be read: " + file.fileName());
        return;
    }
    const int number = dialog.HelpContext;
    const QString topic = FindTopic(QString::fromUtf8(file.readAll()), number);
    if (topic.isNull()) {
        document.setPlainText(QString("The help file has no topic %1: ").arg(number) +
                              file.fileName());
        return;
    }
    document.setMarkdown(topic, QTextDocument::MarkdownDialectGitHub);
    SpaceTables(document);
}

}  // namespace

QString FindTopic(const QString& markdown, int number) {
    static const QRegularExpression mark("^# +", QRegularExpression::MultilineOption);
    static const QRegularExpression blank("\\s");
    const QStringList topics = markdown.split(mark).mid(1);  // what stands ahead is no topic
    for (const QString& topic : topics) {
        if (topic.section(blank, 0, 0) == QString::number(number)) {
            return "# " + topic.section(blank, 1);
        }
    }
    return {};
}

void HelpWindow::ShowHelp(const CommonDialog& dialog) {
    if (dialog.HelpCommand == CommonDialog::ShowTopic) {
        ShowTopic(dialog);
    } else if (dialog.HelpCommand == CommonDialog::Quit && viewer != nullptr) {
        viewer->close();
    }
}

void HelpWindow::ShowTopic(const CommonDialog& dialog) {
    if (viewer == nullptr) {
        viewer = NewViewer();
    }
    // A reader who asks for the topic again is left at the place that was reached.
    const bool again = viewer->isVisible() && topic == dialog.HelpContext;
    topic = dialog.HelpContext;
    if (!again) {
        // A document that is not on show yet is filled much faster.
        auto next = std::make_unique<QTextDocument>();
        next->setDocumentMargin(12);
        Fill(*next, dialog);
        viewer->setDocument(next.get());
        document = std::move(next);
    }
    viewer->setWindowState(viewer->windowState() & ~Qt::WindowMinimized);
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
}
