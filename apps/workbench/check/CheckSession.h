#pragma once

#include "CheckGrades.h"

#include <QObject>

class VKListViewSignal;
class VKRibbonModuleBar;

/// What the workbench adds to one open quality check, beside what the module does itself: the reason of each
/// grade above its curve.
class CheckSession : public QObject {
    Q_OBJECT

public:
    /// For a bar that is complete and has no analysis yet. It owns the session; null, with an Error on the
    /// log, for a bar without the list and the sliders of a quality check.
    static CheckSession* begin(VKRibbonModuleBar& bar);
    ~CheckSession() override;

    CheckGrades& grades() { return m_grades; }

private:
    CheckSession(VKRibbonModuleBar& bar, VKListViewSignal& list, const CheckDials& dials);

    CheckGrades m_grades;
};
