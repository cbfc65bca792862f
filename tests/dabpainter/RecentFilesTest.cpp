// SPDX-License-Identifier: MIT
#include "Window/RecentFiles.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>

#include "Window/AboutReport.h"

namespace dabcanvas::dabpainter {

namespace {

TEST(RecentFilesTest, TheNewestComeFirstAndThoseThatAreGoneAreDropped) {
    const QTemporaryDir folder;
    const auto made = [&](int i) {
        const QString path = folder.filePath(QStringLiteral("%1 & more.png").arg(i));
        EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
        return path;
    };
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    RecentFiles files;
    for (int i = 0; i < 12; ++i)
        files.add(made(i));
    files.add(made(5));
    ASSERT_EQ(files.paths().size(), RecentFiles::kMost);
    EXPECT_EQ(files.paths()[0], made(5));
    EXPECT_EQ(files.paths()[1], made(11));
    files.write(settings);
    RecentFiles next;
    next.read(settings);
    EXPECT_EQ(next.paths(), files.paths());

    QFile::remove(made(11));
    QMenu menu;
    next.fill(menu);
    QString chosen;
    QObject::connect(&next, &RecentFiles::chosen, [&](const QString& path) { chosen = path; });
    EXPECT_TRUE(menu.actions()[1]->text().startsWith("10 && more.png"));
    menu.actions()[1]->trigger();
    EXPECT_EQ(chosen, folder.filePath(QStringLiteral("10 & more.png")));
    menu.actions().last()->trigger();
    EXPECT_TRUE(next.paths().isEmpty());
}

TEST(AboutReportTest, SaysWhatRunsAndNotWhose) {
    const QSettings settings(QDir::home().filePath(QStringLiteral("x/s.ini")), QSettings::IniFormat);
    const QString report = aboutReport(nullptr, settings);
    EXPECT_TRUE(report.contains(QLatin1String(qVersion())));
    EXPECT_TRUE(report.contains("~/x/s.ini")) << report.toStdString();
    EXPECT_FALSE(report.contains(QDir::homePath() + QLatin1Char('/')));
    EXPECT_EQ(withoutHome(QDir::homePath() + "y/z"), QDir::homePath() + "y/z") << "another's folder";
}

}  // namespace

}  // namespace dabcanvas::dabpainter
