// SPDX-License-Identifier: MIT
// Measures strokes for tools/train_shapes.py: shape_features OUT IN.csv...
// OUT gets the features of each stroke as 32-bit floats in this machine's order; standard output its name. Of a row, the first field
// names the stroke, and the last two are x and y.
#include "Recognition/ShapeFeatures.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

using namespace dabcanvas;

namespace {

void measure(const std::string& name, const std::vector<ShapePoint>& points, std::ostream& out) {
    const StrokePath stroke = StrokePath::of(points);
    if (points.size() < 5 || stroke.isEmpty()) {
        std::cerr << "shape_features: nothing to measure in " << name << '\n';
        return;
    }
    const ShapeFeatures features(stroke, ShapeFits(stroke));
    out.write(reinterpret_cast<const char*>(features.values.data()),
              static_cast<std::streamsize>(features.values.size() * sizeof(float)));
    std::cout << name << '\n';
}
}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: shape_features OUT IN.csv...\n";
        return 2;
    }
    std::ofstream out(argv[1], std::ios::binary);
    for (int i = 2; i < argc; ++i) {
        std::ifstream in(argv[i]);
        std::string line;
        if (!std::getline(in, line)) {
            std::cerr << "shape_features: cannot read " << argv[i] << '\n';
            return 1;
        }
        std::string name;
        std::vector<ShapePoint> points;
        while (std::getline(in, line)) {
            const std::size_t y = line.rfind(',');
            const std::size_t x = y == std::string::npos ? y : line.rfind(',', y - 1);
            if (x == std::string::npos) {
                std::cerr << "shape_features: not a row of a stroke: " << line << '\n';
                return 1;
            }
            std::string stroke = line.substr(0, line.find(','));
            if (stroke != name && !points.empty()) {
                measure(name, points, out);
                points.clear();
            }
            name = std::move(stroke);
            points.push_back({std::strtod(&line[x + 1], nullptr), std::strtod(&line[y + 1], nullptr)});
        }
        if (!points.empty()) {
            measure(name, points, out);
        }
    }
    return out.flush() ? 0 : 1;
}
