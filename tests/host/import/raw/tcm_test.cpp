#include "RawFixture.h"

#include "TcmFile.h"

#include <QCryptographicHash>

namespace {

const TAnalysisData& someCurve() {
    static const TAnalysisData curve({0.0F, 1.5F}, {-0.0F, 3e38F});
    return curve;
}

/// The file of that curve, of type "T é", as its layout says; with what a hostile file may claim.
QByteArray written(quint32 version = 1, quint32 typeSize = 4, quint32 channels = 2, quint32 points = 2) {
    QByteArray bytes("TavrelCM");
    const auto number = [&bytes](quint32 value) {
        for (int shift = 0; shift < 32; shift += 8) {
            bytes.append(static_cast<char>(value >> shift));
        }
    };
    number(version);
    number(typeSize);
    bytes.append("T \xC3\xA9");
    number(channels);
    number(points);
    for (const quint32 bits : {0x00000000U, 0x3fc00000U, 0x80000000U, 0x7f61b1e6U}) {
        number(bits);
    }
    return bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

std::string refusal(const QByteArray& bytes) {
    try {
        TcmFile::decoded(bytes, "x.tcm");
    } catch (const VKError& error) {
        return error.text().toStdString();
    }
    return {};
}

class TcmFiles : public RawTest {};

} // namespace

TEST_F(TcmFiles, have_the_documented_bytes_and_give_back_every_bit) {
    const TcmFile file(QString::fromUtf8("T é"), someCurve());
    file.write(path("x.tcm"));
    EXPECT_EQ(bytesOf(path("x.tcm")).toHex(), written().toHex());
    file.write(path("x.tcm"));
    const TcmFile read = TcmFile::read(path("x.tcm"));
    EXPECT_EQ(read.analysisType(), QString::fromUtf8("T é"));
    EXPECT_TRUE(read.curve().equals(someCurve())) << "the sign of zero too";
    EXPECT_THROW(file.write(path("nowhere/x.tcm")), VKError);
    EXPECT_THROW(TcmFile::read(path("nowhere.tcm")), VKError);
}

TEST_F(TcmFiles, with_one_bit_altered_or_cut_off_anywhere_are_refused) {
    const QByteArray whole = written();
    ASSERT_EQ(refusal(whole), "");
    for (int i = 0; i < whole.size(); ++i) {
        for (const int bit : {0, 3, 7}) {
            QByteArray altered = whole;
            altered[i] = static_cast<char>(altered[i] ^ (1 << bit));
            EXPECT_NE(refusal(altered), "") << i << ' ' << bit;
        }
        EXPECT_NE(refusal(whole.left(i)), "") << i;
    }
    EXPECT_NE(refusal(whole + '\0'), "");
}

TEST_F(TcmFiles, say_what_is_wrong_with_them) {
    EXPECT_TRUE(says(refusal("PK\x03\x04"), "another kind of file"));
    EXPECT_TRUE(says(refusal({}), "<b>x.tcm</b> can't be read: this is another kind of file"));
    EXPECT_TRUE(says(refusal("TavrelCM\x02"), "cut off"));
    EXPECT_TRUE(says(refusal(written().replace(45, 1, "x")), "altered or cut off"));
    EXPECT_TRUE(says(refusal(written(2)), "newer version"));
    const std::string misfit = "parts don't fit together";
    EXPECT_TRUE(says(refusal(written(0)), misfit));
    for (const quint32 wrong : {0U, 1U, 3U, 5U, 0x20000000U, 0x7fffffffU, 0x80000002U, 0xffffffffU}) {
        EXPECT_TRUE(says(refusal(written(1, wrong)), misfit)) << wrong;
        EXPECT_TRUE(says(refusal(written(1, 4, wrong)), misfit)) << wrong;
        EXPECT_TRUE(says(refusal(written(1, 4, 2, wrong)), misfit)) << wrong;
    }
    EXPECT_TRUE(says(refusal(TcmFile({}, {{1.0F, 1.0F}, {0.0F, 0.0F}}).encoded()), "same abscissa"));
}
