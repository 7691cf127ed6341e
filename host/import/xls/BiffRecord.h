#pragma once

#include "BiffCursor.h"

/// One record of a workbook: what it is, and its content.
struct BiffRecord {
    static constexpr int headerSize = 4;

    /// The kinds of records that are read; all others are passed by.
    enum Kind : quint16 {
        Formula = 0x0006,
        BofOfBiff2 = 0x0009,
        EndOfSubstream = 0x000A,
        DateMode = 0x0022,
        FilePass = 0x002F,
        Continue = 0x003C,
        BoundSheet = 0x0085,
        MulRk = 0x00BD,
        RString = 0x00D6,
        ExtendedFormat = 0x00E0,
        MergeCells = 0x00E5,
        SharedStrings = 0x00FC,
        LabelSst = 0x00FD,
        Number = 0x0203,
        Label = 0x0204,
        BoolErr = 0x0205,
        String = 0x0207,
        BofOfBiff3 = 0x0209,
        Rk = 0x027E,
        BofOfBiff4 = 0x0409,
        Format = 0x041E,
        Bof = 0x0809,
    };

    quint16 kind;
    BiffCursor content;
};
