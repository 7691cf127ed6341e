#pragma once

#include "ImportNotices.h"

#include <QTextBrowser>

/// Shows notices, one a paragraph, as high as they need up to a few lines; beyond, it scrolls. Hidden
/// without notices.
class ImportNoticesView : public QTextBrowser {
    Q_OBJECT

public:
    explicit ImportNoticesView(QWidget* parent = nullptr);

    void setNotices(const QVector<ImportNotices::Notice>& notices);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitHeight();
};
