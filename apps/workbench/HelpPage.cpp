#include "HelpPage.h"

#include "Guide.h"
#include "MessageLoggerInterface.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

/// The place of the first heading that meets the condition, negative if none does.
template <class Condition>
int findHeading(const QVector<QTextBlock>& headings, Condition condition) {
    const auto found = std::find_if(headings.cbegin(), headings.cend(), condition);
    return found == headings.cend() ? -1 : static_cast<int>(found - headings.cbegin());
}

} // namespace

HelpPage::HelpPage(int helpId, QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDocumentMargin(24);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::follow);
    translate();
    turnTo(helpId);
}

void HelpPage::turnTo(int helpId) {
    const QString heading = Guide::headingFor(helpId);
    showSoon(
        qMax(0, findHeading(headings(), [&](const QTextBlock& block) { return block.text() == heading; })));
}

/// Once the page has its size, on which the places of the headings depend.
void HelpPage::showSoon(int number) {
    m_wanted = number;
    QTimer::singleShot(0, this, SLOT(showWanted()));
}

void HelpPage::showWanted() {
    if (isVisible() && m_wanted >= 0) {
        showHeading(std::exchange(m_wanted, -1));
    }
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource || !name.isRelative()) {
        return {};
    }
    const QImage image(Guide::folder() + name.path());
    const int widest = 800;
    return image.width() > widest ? image.scaledToWidth(widest, Qt::SmoothTransformation) : image;
}

void HelpPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        const int inSight = m_wanted >= 0 ? m_wanted : headingInSight();
        translate();
        showSoon(inSight);
    }
    QTextBrowser::changeEvent(event);
}

void HelpPage::translate() {
    setWindowTitle(tr("User guide", "Guide d'utilisation"));
    setMarkdown(Guide::text());
}

void HelpPage::showEvent(QShowEvent* event) {
    QTextBrowser::showEvent(event);
    QTimer::singleShot(0, this, SLOT(showWanted()));
}

void HelpPage::follow(const QUrl& link) {
    const QString anchor = link.fragment(QUrl::FullyDecoded);
    const bool inside = link.isRelative() && link.path().isEmpty();
    const int number = findHeading(
        headings(), [&](const QTextBlock& block) { return Guide::anchorOf(block.text()) == anchor; });
    if (inside && number >= 0) {
        showHeading(number);
        return;
    }
    MessageLoggerInterface::Information(
        tr("The guide shown here doesn't hold <b>%1</b>: look for it in the documents that came with the "
           "program.",
           "Le guide affiché ici ne contient pas <b>%1</b> : cherchez-le dans les documents fournis avec le "
           "programme.")
            .arg(link.toString().toHtmlEscaped()));
}

QVector<QTextBlock> HelpPage::headings() const {
    QVector<QTextBlock> found;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            found.append(block);
        }
    }
    return found;
}

int HelpPage::headingInSight() const {
    const QPointF below(0, verticalScrollBar()->value() + fontMetrics().height());
    const int top = document()->documentLayout()->hitTest(below, Qt::FuzzyHit);
    const QVector<QTextBlock> all = headings();
    const auto next = std::find_if(all.cbegin(), all.cend(),
                                   [top](const QTextBlock& block) { return block.position() > top; });
    return qMax(0, static_cast<int>(next - all.cbegin()) - 1);
}

void HelpPage::showHeading(int number) {
    const QVector<QTextBlock> all = headings();
    if (number <= 0 || number >= all.size()) {
        moveCursor(QTextCursor::Start);
        return;
    }
    setTextCursor(QTextCursor(all[number]));
    verticalScrollBar()->setValue(qRound(document()->documentLayout()->blockBoundingRect(all[number]).top()));
}
