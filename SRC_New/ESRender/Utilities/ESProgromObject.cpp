// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESProgromObject.h"

ESProgromObject::~ESProgromObject() {
    if (_program) {
        _program->validate();
    }
}
