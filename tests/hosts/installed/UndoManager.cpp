// SPDX-License-Identifier: MIT
#include "UndoManager.h"

int callsOfTheHosts = 0;

UndoManager::UndoManager() {
    ++callsOfTheHosts;
}
UndoManager::~UndoManager() {
    ++callsOfTheHosts;
}
bool UndoManager::addItemWithString(const QString&) {
    return ++callsOfTheHosts > 0;
}
bool UndoManager::canUndo() const {
    return ++callsOfTheHosts < 0;
}
bool UndoManager::undo() {
    return ++callsOfTheHosts < 0;
}
void UndoManager::reset() {
    ++callsOfTheHosts;
}
