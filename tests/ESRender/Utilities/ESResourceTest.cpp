// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESResource.h"

#include <QDir>
#include <QTemporaryDir>

#include "ESRender/ESBaseRender.h"
#include "ESRender/Utilities/ESShaderTools.h"
#include "support/Files.h"
#include "support/LogCapture.h"

namespace {

const QString kShader = QStringLiteral("Shaders.bundle/BaseLine_Mac.vsh");

}  // namespace

TEST(ESResourceTest, AFileBesideTheLibraryWinsOverTheEmbeddedCopy) {
    const QTemporaryDir folder;
    const QString embedded = dabcanvas::resourcePathIn(folder.path(), kShader);
    EXPECT_EQ(embedded, QStringLiteral(":/dabcanvas/") + kShader);
    EXPECT_TRUE(ESBaseRender::stringWithPath(embedded).contains(QStringLiteral("a_center")));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Shaders.bundle")));
    writtenTo(folder.filePath(kShader), "replaced");
    EXPECT_EQ(ESBaseRender::stringWithPath(dabcanvas::resourcePathIn(folder.path(), kShader)),
              QStringLiteral("replaced"));
}

TEST(ESResourceTest, EveryFileOfTheResourceFoldersIsEmbeddedAndStandsBesideTheLibrary) {
    int files = 0;
    for (const char* const bundle : {"Shaders.bundle", "Texture.bundle"}) {
        const QDir beside(QDir(dabcanvas::libraryFolder()).filePath(QLatin1String(bundle)));
        for (const QString& name : beside.entryList(QDir::Files)) {
            const QString resource = QLatin1String(bundle) + QLatin1Char('/') + name;
            QFile embedded(dabcanvas::resourcePathIn(QString(), resource));
            QFile onDisk(dabcanvas::resourcePath(resource));
            ASSERT_TRUE(embedded.open(QIODevice::ReadOnly) && onDisk.open(QIODevice::ReadOnly))
                << qPrintable(resource);
            EXPECT_FALSE(onDisk.fileName().startsWith(QLatin1Char(':')));
            EXPECT_EQ(embedded.readAll(), onDisk.readAll()) << qPrintable(resource);
            ++files;
        }
    }
    EXPECT_GT(files, 2);
}

TEST(ESResourceTest, NamesThatLeaveTheFolderOrMissAreNotFound) {
    const QTemporaryDir folder;
    writtenTo(folder.filePath(QStringLiteral("secret.txt")), "secret");
    const QString inside = folder.filePath(QStringLiteral("library"));
    ASSERT_TRUE(QDir().mkpath(inside));
    for (const QString& name :
         {QString(), QStringLiteral("../secret.txt"), QStringLiteral("x/../../secret.txt"),
          QStringLiteral(".."), folder.filePath(QStringLiteral("secret.txt")),
          QStringLiteral("Shaders.bundle"), QStringLiteral("Shaders.bundle/None.fsh"),
          QStringLiteral(":/dabcanvas/") + kShader}) {
        EXPECT_TRUE(dabcanvas::resourcePathIn(inside, name).isEmpty()) << qPrintable(name);
    }
    LogCapture log;
    EXPECT_TRUE(dabcanvas::imageNamed(QStringLiteral("Texture.bundle/none.png")).isNull());
    EXPECT_TRUE(dabcanvas::imageNamed(kShader).isNull());
    EXPECT_EQ(log.lines().size(), 2);
}

TEST(ESResourceTest, TextsAreNullOnlyWhenThereIsNoFile) {
    const QTemporaryDir folder;
    const QString empty = writtenTo(folder.filePath(QStringLiteral("empty")), "");
    const QString umlaut = writtenTo(folder.filePath(QStringLiteral("umlaut")), "\xC3\xA4");
    EXPECT_FALSE(ESBaseRender::stringWithPath(empty).isNull());
    EXPECT_FALSE(ESShaderTools::readFileWithPath(empty).isNull());
    EXPECT_TRUE(ESBaseRender::stringWithPath(folder.filePath(QStringLiteral("none"))).isNull());
    EXPECT_TRUE(ESShaderTools::readFileWithPath(folder.path()).isNull()) << "a folder";
    EXPECT_TRUE(ESShaderTools::readFile(QStringLiteral("Shaders.bundle/None.fsh")).isNull());
    EXPECT_EQ(ESShaderTools::readFile(kShader), ESBaseRender::baseRenderVertexShaderString());
    EXPECT_EQ(ESBaseRender::stringWithFileName(kShader).constData(),
              ESBaseRender::stringWithFileName(kShader).constData())
        << "read once";
    EXPECT_EQ(ESBaseRender::stringWithPath(umlaut).size(), 2) << "byte by byte";
    EXPECT_EQ(ESShaderTools::readFileWithPath(umlaut).size(), 1) << "UTF-8";
    EXPECT_EQ(ESBaseRender::sourceWithPath(umlaut), QByteArray("\xC3\xA4"));
}
