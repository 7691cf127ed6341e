#include "RawFixture.h"

#include "TcmFile.h"

#include <QCryptographicHash>

namespace {

/// The file of a curve (0, -0), (1.5, 3e38) of type "T é", by its layout, with what a hostile one may claim.
QByteArray file(quint32 version = 1, quint32 typeSize = 4, quint32 channels = 2, quint32 points = 2) {
    QByteArray bytes("TavrelCM");
    const auto append = [&bytes](std::initializer_list<quint32> numbers) {
        for (const quint32 number : numbers) {
            for (int shift = 0; shift < 32; shift += 8) {
                bytes.append(static_cast<char>(number >> shift));
            }
        }
    };
    append({version, typeSize});
    bytes.append("T \xC3\xA9");
    append({channels, points, 0x00000000, 0x3fc00000, 0x80000000, 0x7f61b1e6});
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

} // namespace

TEST(TcmFiles, have_the_documented_bytes_and_give_back_every_bit) {
    const TAnalysisData curve({0.0F, 1.5F}, {-0.0F, 3e38F});
    const TcmFile written(QString::fromUtf8("T é"), curve);
    EXPECT_EQ(written.encoded().toHex(), file().toHex());
    const QTemporaryDir folder;
    written.write(folder.filePath("x.tcm"));
    const TcmFile read = TcmFile::read(folder.filePath("x.tcm"));
    EXPECT_EQ(read.analysisType(), QString::fromUtf8("T é"));
    EXPECT_TRUE(read.curve().equals(curve)) << "the sign of zero too";
}

TEST(TcmFiles, with_one_bit_altered_or_cut_off_anywhere_are_refused) {
    const QByteArray whole = file();
    ASSERT_EQ(refusal(whole), "");
    for (int bit = 0; bit < 8 * whole.size(); ++bit) {
        QByteArray altered = whole;
        altered[bit / 8] = static_cast<char>(altered[bit / 8] ^ (1 << bit % 8));
        EXPECT_NE(refusal(altered), "") << bit;
        EXPECT_NE(refusal(whole.left(bit / 8)), "");
    }
    EXPECT_NE(refusal(whole + '\0'), "");
}

TEST(TcmFiles, say_what_is_wrong_with_them) {
    EXPECT_TRUE(says(refusal({}), "<b>x.tcm</b> can't be read: this is another kind of file"));
    EXPECT_TRUE(says(refusal("TavrelCM\x02"), "cut off"));
    EXPECT_TRUE(says(refusal(file(2)), "newer version"));
    EXPECT_TRUE(says(refusal(TcmFile({}, {{1.0F, 1.0F}, {0.0F, 0.0F}}).encoded()), "same abscissa"));
    const std::string misfit = "parts don't fit together";
    EXPECT_TRUE(says(refusal(file(0)), misfit));
    for (const quint32 wrong : {0U, 1U, 3U, 5U, 0x20000000U, 0x7fffffffU, 0x80000002U, 0xffffffffU}) {
        EXPECT_TRUE(says(refusal(file(1, wrong)), misfit)) << wrong;
        EXPECT_TRUE(says(refusal(file(1, 4, wrong)), misfit)) << wrong;
        EXPECT_TRUE(says(refusal(file(1, 4, 2, wrong)), misfit)) << wrong;
    }
}
