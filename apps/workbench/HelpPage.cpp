#include "HelpPage.h"

#include <QEvent>
#include <QFile>
#include <QImage>
#include <QTextBlock>
#include <QUrl>

namespace {

const QString guideFolder = QStringLiteral(":/guide/");

/// The heading that stands for a help number; the guide's first page for one without.
QString headingFor(int helpId) {
    switch (helpId) {
    case 124:
        return QStringLiteral("The quality check");
    default:
        return {};
    }
}

/// As renderers of the guide's format make anchors: "The quality check" is #the-quality-check.
QString anchorOf(const QString& heading) {
    return heading.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

} // namespace

HelpPage::HelpPage(int helpId, QWidget* parent) : QTextBrowser(parent), m_heading(headingFor(helpId)) {
    QFile file(guideFolder + QStringLiteral("user-guide.md"));
    file.open(QIODevice::ReadOnly);
    setOpenLinks(false);
    document()->setDocumentMargin(24);
    setMarkdown(QString::fromUtf8(file.readAll()));
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::follow);
    translate();
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource || !name.isRelative()) {
        return {};
    }
    const QImage image(guideFolder + name.path());
    const int widest = 800;
    return image.width() > widest ? image.scaledToWidth(widest, Qt::SmoothTransformation) : image;
}

void HelpPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        translate();
    }
    QTextBrowser::changeEvent(event);
}

void HelpPage::translate() {
    setWindowTitle(tr("User guide", "Guide d'utilisation"));
}

void HelpPage::showEvent(QShowEvent* event) {
    QTextBrowser::showEvent(event);
    showHeading(std::exchange(m_heading, {}));
}

void HelpPage::follow(const QUrl& link) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && anchorOf(block.text()) == link.fragment()) {
            showHeading(block.text());
            return;
        }
    }
}

void HelpPage::showHeading(const QString& heading) {
    for (QTextBlock block = document()->begin(); block.isValid() && !heading.isEmpty();
         block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && block.text() == heading) {
            moveCursor(QTextCursor::End); // so that the heading comes to the top, not to the bottom
            setTextCursor(QTextCursor(block));
            return;
        }
    }
}
