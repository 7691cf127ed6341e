#pragma once

#include "Workbook.h"

#include <QString>

#include <exception>

class VKError;

/// Why a file is not read, raised where the fault is found; the reader, which knows the file's name, turns
/// it into the sentence for the user.
class XlsRefusal : public std::exception {
public:
    enum class Cause {
        Empty,       ///< no bytes
        OtherFormat, ///< neither a compound file nor a known workbook
        Xlsx,        ///< the newer format under the older ending
        OlderFormat, ///< a workbook from before BIFF8
        Protected,   ///< encrypted, by either format
        NoWorkbook,  ///< a compound file of something else
        NoWorksheet, ///< nothing but charts and macros
        Truncated,   ///< points behind its end
        Damaged,     ///< contradicts itself
        Loop,        ///< its sectors lead back to themselves
        FileTooLarge,
        TooLargeUnpacked, ///< gaps between cells take memory too
        TooManyCells,
        TooManySheets,
        TooManyRows,
        TooManyColumns,
    };

    explicit XlsRefusal(Cause cause) : m_cause(cause) {}
    ~XlsRefusal() override;

    /// For the log of a programmer; users get `toError`.
    const char* what() const noexcept override { return "a workbook was refused"; }

    Cause cause() const { return m_cause; }

    /// The sheet in which the fault lies, if it lies in one.
    void setSheet(const QString& name) { m_sheet = name; }

    /// The limits are those that were held to.
    VKError toError(const QString& fileName, const Workbook::Limits& limits) const;

private:
    Cause m_cause;
    QString m_sheet;
};
