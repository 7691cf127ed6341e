#include "RawFixture.h"

#include "ImportRockEvalVI.h"
#include "TFileBuffer.h"
#include "TcmFile.h"

#include <QAbstractItemModel>
#include <QCryptographicHash>

#include <sys/stat.h>

namespace {

class RawFiles : public RawTest {
protected:
    bool accepts(const QString& file) {
        TFileBuffer none;
        text.clear();
        reader.prepareForProbe(true);
        return reader.acceptsFile(none, file, text);
    }

    int countOf(const QString& name, const QByteArray& bytes) {
        reader.setSource({}, write(name, bytes), {}, nullptr);
        return reader.dataCount();
    }

    ImportRockEvalVI reader;
    QString text;
};

/// The file of a curve (0, -0), (1.5, 3e38) of type "T é", by its layout, with what a hostile one may claim.
QByteArray tcm(quint32 version = 1, quint32 typeSize = 4, quint32 channels = 2, quint32 points = 2) {
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
    return failure([&] { TcmFile::decoded(bytes, "x.tcm"); });
}

} // namespace

TEST_F(RawFiles, are_known_by_name_and_by_content) {
    EXPECT_TRUE(accepts(write("a.s00", "\r\n[Curves pyro]\r\n")));
    EXPECT_TRUE(accepts(write("b.R00", "\xEF\xBB\xBF  [Param]\n")));
    EXPECT_FALSE(accepts(path("missing.xlsx")));
    EXPECT_FALSE(accepts(write("S00", "[Param]\n")));
    EXPECT_EQ(told() + text.toStdString(), "") << "other names are not this reader's business";

    ASSERT_EQ(mkfifo(qPrintable(path("pipe.S00")), 0600), 0);
    const std::vector<std::pair<QString, std::string>> refused{
        {path("missing.S00"), "<b>missing.S00</b>: it does not exist"},
        {path("pipe.S00"), "no regular file"},
        {write("empty.S00", ""), "no section"},
        {write("<i>.R00", "PK\x03\x04[x]"), "<b>&lt;i&gt;.R00</b>: no section"},
        {write("wide.S00", QByteArray("\xFF\xFE[\0P\0\n\0[", 9)), "no section"}};
    for (const auto& [file, reason] : refused) {
        EXPECT_FALSE(accepts(file)) << qPrintable(file);
        EXPECT_TRUE(says(text.toStdString(), reason));
        EXPECT_EQ(told(), text.toStdString());
    }
}

TEST_F(RawFiles, that_cannot_be_read_give_no_data_and_say_why_once) {
    EXPECT_EQ(reader.dataCount(), -9999) << "there is no source yet";
    EXPECT_EQ(told(), "");
    EXPECT_EQ(countOf("<i>.S00", "[Curves oxi]\n0\t300\t5\t6\n"), -9999);
    EXPECT_EQ(reader.firstChannel(), nullptr);
    EXPECT_EQ(reader.resultsModel(), nullptr);
    EXPECT_EQ(log.entries().size(), 1U);
    EXPECT_TRUE(says(told(), "<b>&lt;i&gt;.S00</b>, line 2: the file ends without a section"));
    EXPECT_EQ(countOf("a.R00", "Well=A\n"), -9999);
    reader.setSource({}, path("missing.S00"), {}, nullptr);
    EXPECT_EQ(reader.dataCount(), -9999);
    EXPECT_TRUE(says(told(), "does not exist"));
}

TEST_F(RawFiles, deliver_time_and_detector_as_floats_and_tell_what_was_left_out) {
    ASSERT_EQ(countOf("a.S00", "[Curves pyro]\n0\t300\t1\n0,1\t300\t-2,5\n<b>\n16777217\t300\t4\n"), 3);
    const std::vector<float> x(reader.firstChannel(), reader.firstChannel() + 3);
    const std::vector<float> y(reader.secondChannel(), reader.secondChannel() + 3);
    EXPECT_EQ(x, (std::vector<float>{0.0F, 0.1F, 16777216.0F}));
    EXPECT_EQ(y, (std::vector<float>{1.0F, -2.5F, 4.0F}));
    EXPECT_TRUE(says(told(MessageLevel::Warning), "<b>a.S00</b>, line 4: row left out: &quot;&lt;b&gt;"));

    EXPECT_EQ(countOf("b.S00", "[Curves pyro]\n0\t0\t1\n" + QByteArray("x\n").repeated(1000)), 1);
    EXPECT_EQ(log.entries().size(), 11U) << "ten places, and that there are more";
    reader.setSource({}, "c.S00", {}, new TFileBuffer(write("other", "[Curves pyro]\n5\t0\t7\n"), true));
    EXPECT_EQ(reader.firstChannel()[0], 5.0F) << "the buffer counts, and nothing of the source before";
}

TEST_F(RawFiles, with_results_become_a_table_that_keeps_every_line) {
    EXPECT_EQ(countOf("a.r00",
                      "Free\n[Param]\nWell=A\xE9 1\nDepth=\nSample=007\nLabel=1234567890123456\n[Empty]\n"
                      "[Results_1]\nVMax=61,5\nKFid=1.34997630867224E-06\nVMax=-3\n=a=b\n"),
              -1);
    const QAbstractItemModel* const table = reader.resultsModel();
    ASSERT_NE(table, nullptr);
    QString rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        rows += table->headerData(row, Qt::Vertical).toString();
        for (int column = 0; column < 3; ++column) {
            const QVariant cell = table->index(row, column).data();
            rows += QString("|%1 %2").arg(QString(cell.typeName()).left(3), cell.toString());
        }
        rows += '\n';
    }
    EXPECT_EQ(rows.toStdString(), "| | |QSt Free\n"
                                  "[Param] Well|QSt Param|QSt Well|QSt Aé 1\n"
                                  "[Param] Depth|QSt Param|QSt Depth| \n"
                                  "[Param] Sample|QSt Param|QSt Sample|QSt 007\n"
                                  "[Param] Label|QSt Param|QSt Label|QSt 1234567890123456\n"
                                  "[Empty]|QSt Empty| | \n"
                                  "[Results_1] VMax|QSt Results_1|QSt VMax|dou 61.5\n"
                                  "[Results_1] KFid|QSt Results_1|QSt KFid|dou 1.34997630867224e-06\n"
                                  "[Results_1] VMax|QSt Results_1|QSt VMax|dou -3\n"
                                  "[Results_1]|QSt Results_1| |QSt a=b\n");
    EXPECT_TRUE(says(told(MessageLevel::Warning), "<b>a.r00</b>, line 11"));
}

TEST(TcmFiles, have_the_documented_bytes_and_give_back_every_bit) {
    const TAnalysisData curve({0.0F, 1.5F}, {-0.0F, 3e38F});
    const TcmFile written(QString::fromUtf8("T é"), curve);
    EXPECT_EQ(written.encoded().toHex(), tcm().toHex());
    const TcmFile read = TcmFile::decoded(written.encoded(), "x.tcm");
    EXPECT_EQ(read.analysisType(), QString::fromUtf8("T é"));
    EXPECT_TRUE(read.curve().equals(curve)) << "the sign of zero too";
}

TEST(TcmFiles, with_one_bit_altered_or_cut_off_anywhere_are_refused) {
    const QByteArray whole = tcm();
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
    EXPECT_TRUE(says(refusal(tcm(2)), "newer version"));
    EXPECT_TRUE(says(refusal(TcmFile({}, {{1.0F, 1.0F}, {0.0F, 0.0F}}).encoded()), "same abscissa"));
    const std::string misfit = "parts don't fit together";
    EXPECT_TRUE(says(refusal(tcm(0)), misfit));
    for (const quint32 wrong : {0U, 1U, 3U, 5U, 0x20000000U, 0x7fffffffU, 0x80000002U, 0xffffffffU}) {
        EXPECT_TRUE(says(refusal(tcm(1, wrong)), misfit)) << wrong;
        EXPECT_TRUE(says(refusal(tcm(1, 4, wrong)), misfit)) << wrong;
        EXPECT_TRUE(says(refusal(tcm(1, 4, 2, wrong)), misfit)) << wrong;
    }
}
