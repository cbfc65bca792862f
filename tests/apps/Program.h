// SPDX-License-Identifier: MIT
// Runs the program, in a folder of its own.
#pragma once

#include <gmock/gmock.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "support/Files.h"

namespace dabcanvas::dabpaint {

struct Ended {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

inline Ended runProgram(const QStringList& arguments, const QByteArray& input = {},
                        const QStringList& environment = {}) {
    QProcess program;
    auto variables = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : environment)
        variables.insert(variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
    program.setProcessEnvironment(variables);
    program.start(QStringLiteral(DABPAINT_PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    Ended ended;
    if (program.waitForFinished(120000) && program.exitStatus() == QProcess::NormalExit)
        ended.status = program.exitCode();
    ended.out = program.readAllStandardOutput();
    ended.err = program.readAllStandardError();
    return ended;
}

class ProgramTest : public ::testing::Test {
protected:
    QString path(const char* name) const { return _folder.filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& bytes) const { return writtenTo(path(name), bytes); }
    // Runs the program with these words; % is the folder.
    Ended run(const std::string& words, const QByteArray& input = {}) const {
        const QString line = QString::fromStdString(words);
        return runProgram(QString(line)
                              .replace(QLatin1Char('%'), _folder.path() + QLatin1Char('/'))
                              .split(QLatin1Char(' ')),
                          input);
    }
    QStringList filesThere() const {
        return QDir(_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir _folder;
};

inline void expectOneLine(const Ended& ended, int status, const char* fragment) {
    EXPECT_EQ(ended.status, status) << ended.err.constData();
    EXPECT_THAT(ended.err.toStdString(), ::testing::StartsWith("dabpaint: "));
    EXPECT_THAT(ended.err.toStdString(), ::testing::HasSubstr(fragment));
    EXPECT_EQ(ended.err.count('\n'), 1) << ended.err.constData();
    EXPECT_TRUE(ended.out.isEmpty());
}

}  // namespace dabcanvas::dabpaint
