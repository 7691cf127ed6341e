#include "ExpectedWarning.h"

#include <gtest/gtest.h>

#include <QtGlobal>

#include <cstdio>

ExpectedWarning*& ExpectedWarning::innermost() {
    static struct { ExpectedWarning* expected = nullptr; } holder;
    return holder.expected;
}

ExpectedWarning::ExpectedWarning(const QString& part) : m_part(part), m_outer(innermost()) {
    innermost() = this;
}

ExpectedWarning::~ExpectedWarning() {
    innermost() = m_outer;
    EXPECT_GT(m_count, 0) << "no warning came with the text: " << m_part.toStdString();
}

void ExpectedWarning::installGuard() {
    qInstallMessageHandler(handle);
}

void ExpectedWarning::handle(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (message.startsWith(QLatin1String("This plugin does not support"))) {
        return; // the offscreen platform, on what only a screen has
    }
    const bool grave = type != QtDebugMsg && type != QtInfoMsg;
    for (ExpectedWarning* expected = innermost(); grave && expected != nullptr;
         expected = expected->m_outer) {
        if (message.contains(expected->m_part)) {
            ++expected->m_count;
            return;
        }
    }
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (grave && testing::UnitTest::GetInstance()->current_test_info() != nullptr) {
        ADD_FAILURE() << "unexpected on Qt's log: " << message.toStdString();
    }
}
