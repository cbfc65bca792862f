#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Has the painter make the pictures of docs/painter.md: tools/painter_pictures.sh [BUILD], which is build/ci if not said.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/ci}
cmake --build "$build" --target painter_pictures >/dev/null
for scale in 1 2; do
    LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale "$build/bin/painter_pictures" docs/images
done
