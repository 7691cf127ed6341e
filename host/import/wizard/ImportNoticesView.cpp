#include "ImportNoticesView.h"

#include <QtMath>

#include <algorithm>

namespace {

constexpr int mostLines = 5;

QString iconOf(ImportNotices::Notice::Level level) {
    using Level = ImportNotices::Notice::Level;
    switch (level) {
    case Level::Obstacle:
        return QStringLiteral("error");
    case Level::Warning:
        return QStringLiteral("warning");
    case Level::Remark:
        break;
    }
    return QStringLiteral("info");
}

} // namespace

ImportNoticesView::ImportNoticesView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
}

void ImportNoticesView::setNotices(const QVector<ImportNotices::Notice>& notices) {
    QString html;
    for (const auto& notice : notices) {
        html += QStringLiteral("<p style='margin:0'><img src=':/Ressources/png/toolbar/%1.png' width='14' "
                               "height='14' style='vertical-align:middle'>&nbsp; %2</p>")
                    .arg(iconOf(notice.level), notice.text);
    }
    setHtml(html);
    setVisible(!notices.isEmpty());
    fitHeight();
}

void ImportNoticesView::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    fitHeight();
}

void ImportNoticesView::fitHeight() {
    const int most = mostLines * fontMetrics().lineSpacing();
    const int needed = qCeil(document()->size().height());
    setVerticalScrollBarPolicy(needed > most ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setFixedHeight(std::min(needed, most));
}
