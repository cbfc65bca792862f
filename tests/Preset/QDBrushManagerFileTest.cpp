// SPDX-License-Identifier: MIT

#include <QColor>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

#include "Preset/QDBrushManager.h"
#include "TestFolders.h"
#include "support/Files.h"
#include "support/HexFile.h"
#include "support/LogCapture.h"
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>

#include "support/DyingProcess.h"
#include "support/Limits.h"
#endif

namespace {

BrushParam param(int id, const char* method, const QVariant& value, int type) {
    return QDBrushManager::paramWithID(id, QString::fromLatin1(method), value, type);
}

HexFile spelled(const char* name) {
    return hexFile(std::string(DABCANVAS_TEST_DATA "/xbf/") + name + ".hex");
}

class QDBrushManagerFile : public ::testing::Test {
protected:
    QByteArray content() const { return contentOf(path); }
    void setContent(const QByteArray& bytes) const { writtenTo(path, bytes); }
    void setContent(const std::string& bytes) const { setContent(QByteArray::fromStdString(bytes)); }
    // The only brush of the file, which must be whole.
    QVariantMap onlyBrush() const {
        QString problem;
        const auto brushes = QDBrushManager::brushesWithXBFPath(path, nullptr, &problem);
        EXPECT_EQ(problem, QString());
        EXPECT_TRUE(brushes && brushes->size() == 1);
        return brushes && brushes->size() == 1 ? brushes->front() : QVariantMap();
    }
    // What one value of a type reads back as.
    QVariant saved(const QVariant& value, int type) const {
        EXPECT_TRUE(QDBrushManager::saveParams(BrushParams{param(1, "setIt:", value, type)}, 200, {}, path));
        return BrushRecords::paramValueForKey(BrushRecords::brushParams(onlyBrush()), 1);
    }

#ifdef Q_OS_UNIX
    QString madePipe() const {
        const QString pipe = folder.filePath("pipe");
        EXPECT_EQ(::mkfifo(pipe.toUtf8().constData(), 0600), 0);
        return pipe;
    }
#endif
    qsizetype filesInFolder() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size();
    }

    QTemporaryDir folder;
    QString path = folder.filePath("水彩 brush.xbf");
};

// Bytes

TEST_F(QDBrushManagerFile, EveryTypeIsSpelledAsItsFileSaysBothWays) {
    const QByteArray data("\0\1\2\3\4\5\6\7\x08\xFF", 10);
    const auto color = [](float green) { return QVariant::fromValue(ESColor::rgba(1, green, 0.2f, 0)); };
    const char* const setColor = "setRenderColor:";
    const QString key = "Quick", text = "ab\u00E9", empty = "";
    const struct {
        const char* name;
        BrushParams written, read;  // the same, when there is only one
    } rows[] = {
        {"bool", {param(0x2003, "setFlipX:", true, kXBFBool)}, {}},
        {"int", {param(0x300C, "setTrackNum:", -2, kXBFInt)}, {}},
        {"float", {param(0x2002, "setRadius:", 12.5f, kXBFFloat)}, {}},
        {"double", {param(0x7FFF, "", -0.1, kXBFDouble)}, {}},
        {"color",
         {param(0x1003, setColor, color(0.5f), kXBFColor)},
         {param(0x1003, setColor, color(127 / 255.0f), kXBFColor)}},
        {"character",
         {param(1, "setKey:", key, kXBFCharacter)},
         {param(1, "setKey:", key.left(1), kXBFCharacter)}},
        {"text", {param(0x9001, "setShaders:", text, kXBFText)}, {}},
        {"data", {param(0x800F, "setMaskImage:", data, kXBFData)}, {}},
        {"preset",
         {param(0x1001, "setBrushType:", 2, kXBFInt), param(0x2002, "setRadius:", 0.25f, kXBFFloat),
          param(0x2001, "setTextureImages:", QByteArray("PN"), kXBFData), param(1, "setIt:", 0, 4098),
          param(0x2002, "setRadius:", 0.5f, kXBFFloat), param(0x9002, "", empty, kXBFText)},
         {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const HexFile file = spelled(row.name);
        ASSERT_TRUE(QDBrushManager::saveParams(row.written, 200, "Ink", path));
        EXPECT_EQ(QByteArray::fromStdString(file.filled(content().toStdString())).toHex(' '),
                  QByteArray::fromStdString(file.bytes).toHex(' '));
        setContent(file.bytes);
        const QVariantMap brush = onlyBrush();
        EXPECT_EQ(BrushRecords::brushName(brush), "Ink");
        EXPECT_EQ(BrushRecords::brushVersion(brush), 200);
        const BrushParams& expected = row.read.isEmpty() ? row.written : row.read;
        const BrushParams params = BrushRecords::brushParams(brush);
        EXPECT_EQ(params, expected);
        for (qsizetype i = 0; i < std::min(params.size(), expected.size()); ++i) {
            EXPECT_EQ(BrushRecords::paramValue(params[i]).typeId(),
                      BrushRecords::paramValue(expected[i]).typeId());
        }
    }
    const BrushParams params = BrushRecords::brushParams(onlyBrush());
    EXPECT_EQ(BrushRecords::paramValueForKey(params, 0x2002).toFloat(), 0.25f);  // the first one's
    EXPECT_FALSE(BrushRecords::paramValueForKey(params, 0x2003).isValid());
}

// Deliberate: what a type does not name is the record's before. A boolean after a double shows it.
TEST_F(QDBrushManagerFile, TheValueIsClearedOnceNotForEveryRecord) {
    ASSERT_TRUE(QDBrushManager::saveParams(
        BrushParams{param(1, "", 1.0 / 3, kXBFDouble), param(2, "", true, kXBFBool)}, 200, {}, path));
    const QByteArray bytes = content();
    constexpr qsizetype kFirst = 12 + 4 + 12, kSecond = kFirst + 16 + 12;
    EXPECT_EQ(bytes.mid(kFirst, 16).toHex(), QByteArray("555555555555d53f0000000000000000"));
    EXPECT_EQ(bytes.mid(kSecond, 16).toHex(), QByteArray("015555555555d53f0000000000000000"));
    EXPECT_EQ(bytes.mid(kSecond + 16 + 12, 8), QByteArray(8, 0));  // the terminator's
}

TEST_F(QDBrushManagerFile, ColoursAreCutButDoNotFadeFromSaveToSave) {
    for (int stored = 0; stored <= 255; ++stored) {
        const QVariant color = QVariant::fromValue(ESColor::rgba(static_cast<float>(stored / 255.0), 0, 0));
        ASSERT_EQ(saved(color, kXBFColor), color) << stored;
    }
    EXPECT_EQ(saved(QColor(51, 102, 153), kXBFColor), QVariant::fromValue(ESColor::rgba(0.2f, 0.4f, 0.6f)));
}

TEST_F(QDBrushManagerFile, ValuesOfAnotherTypeAreConverted) {
    const struct {
        const char* name;
        QVariant value;
        int type;
        QVariant expected;
    } rows[] = {
        {"bool kept as float", 1.0f, kXBFBool, true},
        {"half as bool", 0.5, kXBFBool, true},
        {"text as float", "2.5", kXBFFloat, 2.5f},
        {"nothing as int", QVariant(), kXBFInt, 0},
        {"a fraction as int", -2.9, kXBFInt, -2},
        {"too much as int", 1e30f, kXBFInt, std::numeric_limits<qint32>::max()},
        {"nothing as colour", QVariant(), kXBFColor, QVariant::fromValue(ESColor::rgba(0, 0, 0, 0))},
        {"colour as int", QVariant::fromValue(ESColor::grey(1)), kXBFInt, 0},
        {"nothing as character", QVariant(), kXBFCharacter, QString()},
        {"nothing as text", QVariant(), kXBFText, QString()},
        {"nothing as data", QVariant(), kXBFData, QByteArray()},
        {"a character of two bytes", "\u00E9", kXBFCharacter, "\u00C3"},
        {"a reserved type", 7, 4099, 0},
        {"an unknown type", 7, 1, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(saved(row.value, row.type), row.expected);
    }
}

// Reading

TEST_F(QDBrushManagerFile, SeveralBrushesAndTheirNames) {
    const std::string one = spelled("text").bytes.substr(12);
    const std::string two = spelled("data").bytes.substr(12).replace(4, 3, "\xFFn\xC3");
    setContent(std::string("\5\0\0\0\1\x10\0\0\3\0\0\0", 12) + one + two + one + "behind the last one");
    int version = 0, same = 0;
    QString problem;
    const auto brushes = QDBrushManager::brushesWithXBFPath(path, &version, &problem);
    EXPECT_EQ(problem, QString());
    QStringList names;
    for (const QVariantMap& brush : brushes.value_or(QList<QVariantMap>())) {
        names += BrushRecords::brushName(brush);
        EXPECT_EQ(BrushRecords::brushParams(brush).size(), 1);
        EXPECT_EQ(BrushRecords::brushVersion(brush), 5);
    }
    EXPECT_EQ(names.join(' '), "Ink \uFFFDn\uFFFD Ink");
    EXPECT_EQ(QDBrushManager::brushNamesWithXBFPath(path, &same), names);
    EXPECT_TRUE(version == 5 && same == 5);
}

// Cut anywhere, a file gives the records that are whole, says once that it is damaged, and where.
TEST_F(QDBrushManagerFile, AFileCutAnywhereGivesWhatIsWhole) {
    const std::string whole = spelled("preset").bytes;
    // Where the name and each record end.
    const std::size_t ends[] = {19, 60, 98, 145, 179, 217, 249, 277};
    ASSERT_EQ(whole.size(), ends[7]);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        setContent(whole.substr(0, size));
        LogCapture log;
        QString problem;
        const auto brushes = QDBrushManager::brushesWithXBFPath(path, nullptr, &problem);
        EXPECT_FALSE(problem.isEmpty());
        EXPECT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.has(problem) && log.has(path));
        ASSERT_EQ(brushes.has_value(), size >= 12);
        if (brushes) {
            ASSERT_EQ(brushes->size(), size >= ends[0] ? 1 : 0);
            const auto records =
                std::count_if(ends + 1, ends + 7, [&](std::size_t end) { return end <= size; });
            if (!brushes->isEmpty()) {
                EXPECT_EQ(BrushRecords::brushParams(brushes->front()).size(), records);
            }
        }
    }
}

TEST_F(QDBrushManagerFile, AnotherCountOrLengthSaysWhereItIsWrong) {
    const struct {
        std::size_t place;
        const char* length;
        qsizetype brushes;
        const char* problem;
    } rows[] = {
        {8, "\0\0\0\0", 0, ""},
        {8, "\xFF\xFF\xFF\xFF", 0, ""},
        {8, "\xFF\xFF\xFF\x7F", 1, "name of brush 2 of 2147483647: the file ends before it"},
        {12, "\xFF\xFF\xFF\x7F", 0, "name of brush 1 of 1: it claims more bytes than the file holds"},
        {127, "\0\0\0\x10", 1, "record 3 of brush 1 of 1: it claims more bytes than the file holds"},
        {127, "\xFF\xFF\xFF\xFF", 1, "record 3 of brush 1 of 1: its size is not possible"},
    };
    for (const auto& row : rows) {
        setContent(spelled("preset").bytes.replace(row.place, 4, row.length, 4));
        const LogCapture log;
        int version = 0;
        QString problem;
        const auto brushes = QDBrushManager::brushesWithXBFPath(path, &version, &problem);
        EXPECT_EQ(brushes ? brushes->size() : -1, row.brushes);
        EXPECT_EQ(version, 200);
        EXPECT_EQ(problem, QLatin1String(row.problem));
    }
}

// A record takes 28 bytes of a file and several hundred of memory.
TEST_F(QDBrushManagerFile, TinyRecordsWithoutEndAreNotTaken) {
    const QByteArray record = QByteArray("\1\0\0\0\0\0\0\0\1\x10\0\0", 12) + QByteArray(16, 0);
    const auto brushes = [&](int count, int records) {
        const QByteArray brush = QByteArray(4, 0) + record.repeated(records) + QByteArray(28, 0);
        return QByteArray("\5\0\0\0\1\x10\0\0", 8) + QByteArray(reinterpret_cast<const char*>(&count), 4) +
               brush.repeated(count);
    };
    const int most = QDBrushManager::kMostRecords, all = QDBrushManager::kMostRecordsOfFile;
    const struct {
        int count, records;
        const char *problem, *listed;
    } rows[] = {
        {1, most, "", ""},
        {1, most + 1, "record 4097 of brush 1 of 1: there are more than", ""},
        {all / 2, 1, "", ""},
        {all / 2 + 1, 1, "name of brush 32769 of 32769: there are more than", "name of brush 32769"},
        {2, most + 1, "record 4097 of brush 1 of 2", "record 4097 of brush 1 of 2"},
    };
    for (const auto& row : rows) {
        setContent(brushes(row.count, row.records));
        const LogCapture log;
        QString problem, listed;
        const auto read = QDBrushManager::brushesWithXBFPath(path, nullptr, &problem);
        QDBrushManager::brushNamesWithXBFPath(path, nullptr, &listed);
        EXPECT_EQ(problem.left(qstrlen(row.problem)), QLatin1String(row.problem));
        EXPECT_EQ(listed.left(qstrlen(row.listed)), QLatin1String(row.listed));
        EXPECT_EQ(problem.isEmpty(), *row.problem == 0);
        EXPECT_EQ(listed.isEmpty(), *row.listed == 0);
        ASSERT_TRUE(read && !read->isEmpty());
        EXPECT_LE(BrushRecords::brushParams(read->front()).size(), most);
    }
}

TEST_F(QDBrushManagerFile, WhatIsNoBrushFileIsSaidSo) {
    setContent(QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16) + QByteArray(100, 0));
    const std::pair<QString, const char*> rows[] = {
        {path, "this is not an XBF file"},
        {folder.path(), "it is not a plain file"},
#ifdef Q_OS_UNIX
        {madePipe(), "it is not a plain file"},  // which nobody writes into
#endif
        {folder.filePath("none.xbf"), std::strerror(ENOENT)},
        {path + QChar(0) + ".png", "this is not a path"},
        {QString(), ""}};
    for (const auto& [file, expected] : rows) {
        const LogCapture log;
        int version = -1;
        QString problem, same;
        EXPECT_FALSE(QDBrushManager::brushesWithXBFPath(file, &version, &problem));
        EXPECT_FALSE(QDBrushManager::brushNamesWithXBFPath(file, &version, &same));
        EXPECT_TRUE(!problem.isEmpty() && problem.contains(QLatin1String(expected))) << expected;
        EXPECT_EQ(same, problem);
        EXPECT_EQ(version, -1);
        EXPECT_EQ(log.lines().size(), 2);
    }
}

// Writing

// Whatever is refused leaves the old file, and nothing beside it.
TEST_F(QDBrushManagerFile, ARefusedSaveLeavesTheOldFile) {
    const BrushParams good{param(1, "setIt:", 1, kXBFInt)};
    ASSERT_TRUE(QDBrushManager::saveParams(good, 200, {}, path));
    const QByteArray before = content();
    const struct {
        const char* name;
        std::optional<BrushParams> params;
        QString path;
    } rows[] = {
        {"no list", std::nullopt, path},
        {"a record that would end the brush", BrushParams{good.front(), BrushParam()}, path},
        {"no path", good, QString()},
        {"no folder", good, folder.filePath("none/a.xbf")},
        {"a file as folder", good, path + "/a.xbf"},
        {"a folder", good, folder.path()},
#ifdef Q_OS_UNIX
        {"a pipe", good, madePipe()},
#endif
        {"a path with a NUL", good, path + QChar(0) + "a"},
        {"more records than are read", BrushParams(QDBrushManager::kMostRecords + 1, good.front()), path},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const LogCapture log;
        QString problem;
        EXPECT_FALSE(QDBrushManager::saveParams(row.params, 200, {}, row.path, &problem));
        EXPECT_FALSE(problem.isEmpty());
        EXPECT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.has(problem));
        EXPECT_EQ(content(), before);
        EXPECT_EQ(filesInFolder(), 1);
    }
}

#ifdef Q_OS_UNIX
TEST_F(QDBrushManagerFile, AFullDiskLeavesTheOldFile) {
    ASSERT_TRUE(QDBrushManager::saveParams(BrushParams(), 200, {}, path));
    const QByteArray before = content();
    for (const qsizetype size : {3'000, 100'000}) {  // found out when flushing, and when writing
        const LogCapture log;
        const BrushParams params{param(1, "", QByteArray(size, 'd'), kXBFData)};
        const bool saved = [&] {
            const FullDisk full;
            return QDBrushManager::saveParams(params, 200, {}, path);
        }();
        EXPECT_FALSE(saved);
        EXPECT_TRUE(log.has(QString::fromLocal8Bit(std::strerror(EFBIG))));
        EXPECT_EQ(content(), before);
        EXPECT_EQ(filesInFolder(), 1);
    }
}

#ifdef Q_OS_LINUX
// The system kills who writes more than it may, in the middle of that.
TEST_F(QDBrushManagerFile, AKilledWriterLeavesTheOldFileAndNothingBesideIt) {
    const int nameless = ::open(folder.path().toUtf8().constData(), O_TMPFILE | O_RDWR, 0600);
    if (nameless < 0) {
        GTEST_SKIP() << "this file system has no files without a name";
    }
    ::close(nameless);
    ASSERT_TRUE(QDBrushManager::saveParams(BrushParams(), 200, {}, path));
    const QByteArray before = content();
    inDyingProcess([&] {
        const Limited noCore(RLIMIT_CORE, 0), small(RLIMIT_FSIZE, 1000);
        QDBrushManager::saveParams(BrushParams{param(1, "", QByteArray(100'000, 'd'), kXBFData)}, 200, {},
                                   path);
        ::_exit(0);
    });
    EXPECT_EQ(content(), before);
    EXPECT_EQ(filesInFolder(), 1);
}
#endif

TEST_F(QDBrushManagerFile, LinksAreFollowedAndPermissionsStay) {
    const QString link = folder.filePath("link.xbf");
    ASSERT_TRUE(QFile::link("水彩 brush.xbf", link));
    EXPECT_TRUE(QDBrushManager::saveParams(BrushParams(), 200, {}, link));  // dangling as yet
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const auto before = QFile::permissions(path);
    EXPECT_TRUE(QDBrushManager::saveParams(BrushParams(), 201, "Füller", link));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(BrushRecords::brushVersion(onlyBrush()), 201);
    EXPECT_EQ(BrushRecords::brushName(onlyBrush()), "Füller");
    EXPECT_EQ(QFile::permissions(path), before);
}
#endif

}  // namespace
