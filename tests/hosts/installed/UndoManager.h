// SPDX-License-Identifier: MIT
// The host's own class, which is called as one of the library's and has functions that are called as its.
#pragma once

class QString;

class UndoManager {
public:
    UndoManager();
    virtual ~UndoManager();

    virtual bool addItemWithString(const QString& item);
    bool canUndo() const;
    virtual bool undo();
    virtual void reset();
};

extern int callsOfTheHosts;
