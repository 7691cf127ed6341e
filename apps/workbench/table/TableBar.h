#pragma once

#include <QToolBar>

class QAction;
class TBarCaption;

/// The tool row of a table's page: its commands and, as far as there is room, a caption at the end.
class TableBar : public QToolBar {
    Q_OBJECT

public:
    explicit TableBar(QWidget* parent);

    QAction* copyAction() const { return m_copy; }
    QAction* copyWithHeadersAction() const { return m_copyWithHeaders; }
    QAction* exportAction() const { return m_export; }

    void setCaption(const QString& caption);

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* addCommand(const char* icon, const QKeySequence& keys);
    void retranslate();

    QAction* m_copy;
    QAction* m_copyWithHeaders;
    QAction* m_export;
    TBarCaption* m_caption;
};
