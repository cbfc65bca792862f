// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <bit>
#include <utility>

#include "Recording/CloseNames.h"
#include "Recording/JsonReader.h"

namespace dabcanvas {

// Finds a member among those an object knows and refuses it the second time. One per object read.
class JsonMembers {
public:
    JsonMembers(JsonReader& reader, QStringList known) : _reader(reader), _known(std::move(known)) {}

    // Index among the known names; -1 after a failure.
    int place(const QString& name) {
        const auto index = int(_known.indexOf(name));
        if (index < 0) {
            _reader.fail(QStringLiteral("unknown member, expected %1%2")
                             .arg(_known.join(QStringLiteral(", ")), closeNamesHint(name, _known)));
            return -1;
        }
        const unsigned bit = 1u << index;
        if (_seen & bit) {
            _reader.fail(QStringLiteral("given twice"));
            return -1;
        }
        _seen |= bit;
        return index;
    }
    // Reads the object, each member's value by read(int place). False after a failure.
    template <typename Read>
    bool readObject(Read&& read) {
        QString name;
        _reader.beginObject();
        while (_reader.nextMember(name)) {
            const int index = place(name);
            if (index < 0)
                return false;
            read(index);
        }
        return !_reader.failed();
    }
    bool has(int index) const { return (_seen >> index) & 1u; }
    int count() const { return std::popcount(_seen); }

private:
    JsonReader& _reader;
    QStringList _known;
    unsigned _seen = 0;
};

}  // namespace dabcanvas
