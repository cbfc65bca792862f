// SPDX-License-Identifier: MIT
// Folders of histories that are to be found again (UndoRecovery.h); nothing for embedders.
//
// Thread   any.
// Errors   null, and why.
#pragma once

#include <QString>
#include <memory>

namespace dabcanvas {

class TempFolder;

// A new one. It goes with its owner, unless he leaves it or dies.
std::unique_ptr<TempFolder> startKeptHistory(QString* problem);
// One that a dead process left; renumber() makes it the one used last, by another id.
std::unique_ptr<TempFolder> claimKeptHistory(const QString& id, QString* problem);

// What a host says of it, in the folder of this path: whole, or as it was before.
bool writeKeptWords(const QString& path, const QString& words);
QString keptWords(const QString& path);

}  // namespace dabcanvas
