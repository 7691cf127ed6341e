#pragma once

#include "VKError.h"

#include <QCoreApplication>
#include <QString>

/// The sentences for why one .xlsx file can't be read. Each says what is wrong with it and what to do.
class XlsxErrors {
    Q_DECLARE_TR_FUNCTIONS(XlsxErrors)

public:
    explicit XlsxErrors(const QString& fileName) : m_fileName(fileName) {}

    VKError noWorkbook() const;
    VKError binaryWorkbook() const;
    VKError openDocument() const;
    VKError noSheet() const;

    /// The archive as a whole.
    VKError damagedArchive(const QString& cause) const;
    VKError damagedPart(const QString& part, const QString& cause) const;
    VKError damagedPart(const QString& part, qint64 line, const QString& cause) const;
    VKError missingPart(const QString& part) const;
    VKError encrypted(const QString& part) const;

    VKError tooLarge(qint64 bytes) const;
    VKError unpacksTooLarge(qint64 bytes) const;
    VKError bomb(const QString& part) const;
    VKError tooManyParts() const;
    VKError tooManySheets(int limit) const;
    VKError tooManyCells(qint64 limit) const;
    VKError tooManyGaps() const;

private:
    QString refusal(const QString& cause) const;
    static QString saveAgain();
    static QString split();

    QString m_fileName;
};
