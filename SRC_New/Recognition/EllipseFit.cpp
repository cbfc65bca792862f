// SPDX-License-Identifier: MIT
#include "Recognition/EllipseFit.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

namespace dabcanvas {

namespace {
constexpr double kPi = std::numbers::pi;
constexpr double kLongest = 20;  // half axes beyond this, in the stroke's diagonals, are a straight line's
constexpr double kShortest = 1e-3;

using Vec5 = Eigen::Matrix<double, 5, 1>;

bool isSound(const Ellipse& e) {
    return std::isfinite(e.a) && std::isfinite(e.b) && std::isfinite(e.angle) && e.centre.allFinite() &&
           e.a < kLongest && e.b < kLongest && e.a > kShortest && e.b > kShortest;
}

// Numerically stable direct least squares (Halir and Flusser, 1998): of all conics the ellipse with the least
// algebraic distance. It is never a hyperbola, but favours small ellipses: only the start of the fit proper.
std::optional<Ellipse> directFit(const Path& path) {
    Eigen::Matrix3d s1 = Eigen::Matrix3d::Zero();
    Eigen::Matrix3d s2 = Eigen::Matrix3d::Zero();
    Eigen::Matrix3d s3 = Eigen::Matrix3d::Zero();
    for (const Vec2& p : path) {
        const Eigen::Vector3d quadratic(p.x() * p.x(), p.x() * p.y(), p.y() * p.y());
        const Eigen::Vector3d linear(p.x(), p.y(), 1);
        s1 += quadratic * quadratic.transpose();
        s2 += quadratic * linear.transpose();
        s3 += linear * linear.transpose();
    }
    const Eigen::FullPivLU<Eigen::Matrix3d> lu(s3);
    if (!lu.isInvertible()) {
        return {};
    }
    const Eigen::Matrix3d t = -lu.solve(s2.transpose());
    Eigen::Matrix3d m = s1 + s2 * t;
    m = (Eigen::Matrix3d() << m.row(2) / 2, -m.row(1), m.row(0) / 2).finished();
    const Eigen::EigenSolver<Eigen::Matrix3d> solver(m);
    if (solver.info() != Eigen::Success) {
        return {};
    }
    for (int i = 0; i < 3; ++i) {
        const Eigen::Vector3d q = solver.eigenvectors().col(i).real();
        if (4 * q[0] * q[2] - q[1] * q[1] <= 0) {
            continue;
        }
        const Eigen::Vector3d l = t * q;
        Eigen::Matrix2d shape;
        shape << q[0], q[1] / 2, q[1] / 2, q[2];
        Ellipse e;
        e.centre = -0.5 * shape.inverse() * l.head<2>();
        const double level = e.centre.dot(shape * e.centre) - l[2];
        const Eigen::SelfAdjointEigenSolver<Eigen::Matrix2d> axes(shape);
        const Eigen::Vector2d squares = level * axes.eigenvalues().cwiseInverse();
        if (!(squares.minCoeff() > 0)) {
            return {};
        }
        e.a = std::sqrt(squares[0]);
        e.b = std::sqrt(squares[1]);
        e.angle = std::atan2(axes.eigenvectors()(1, 0), axes.eigenvectors()(0, 0));
        if (e.a < e.b) {
            std::swap(e.a, e.b);
            e.angle += kPi / 2;
        }
        return isSound(e) ? std::optional(e) : std::nullopt;
    }
    return {};
}

// How far each point lies outside the outline, and where on it the nearest point is.
struct Comparison {
    std::vector<double> distances;
    std::vector<Vec2> normals;     // of the outline, in the frame of its axes
    std::vector<Vec2> parameters;  // cosines and sines
    double sum = 0;                // of the squares

    Comparison(const Ellipse& e, const Path& path) {
        const EllipseFrame frame(e);
        distances.reserve(path.size());
        normals.reserve(path.size());
        parameters.reserve(path.size());
        for (const Vec2& p : path) {
            const Vec2 local = frame.inward(p);
            const Vec2 t = frame.nearest(local);
            const Vec2 normal = Vec2(t.x() * e.b, t.y() * e.a).normalized();
            parameters.push_back(t);
            normals.push_back(normal);
            distances.push_back(normal.dot(local - frame.at(t)));
            sum += distances.back() * distances.back();
        }
    }
};

// Levenberg and Marquardt's way down the sum of squared distances.
Ellipse refined(Ellipse e, const Path& path) {
    constexpr int kRounds = 8;
    constexpr double kSettled = 1e-3;  // an improvement by less than this part is the last
    Comparison now(e, path);
    double damping = 1e-3;
    for (int round = 0; round < kRounds; ++round) {
        Eigen::Matrix<double, 5, 5> normal = Eigen::Matrix<double, 5, 5>::Zero();
        Vec5 slope = Vec5::Zero();
        const double cr = std::cos(e.angle);
        const double sr = std::sin(e.angle);
        for (std::size_t i = 0; i < path.size(); ++i) {
            // How the distance changes with centre, axes and angle: the outline's movement along its normal.
            const Vec2& n = now.normals[i];
            const Vec2& t = now.parameters[i];
            Vec5 change;
            change << n.x() * cr - n.y() * sr, n.x() * sr + n.y() * cr, n.x() * t.x(), n.y() * t.y(),
                n.y() * e.a * t.x() - n.x() * e.b * t.y();
            normal += change * change.transpose();
            slope += change * now.distances[i];
        }
        normal.diagonal() *= 1 + damping;
        normal.diagonal().array() += 1e-12;
        const Vec5 step = normal.ldlt().solve(slope);
        Ellipse next = e;
        next.centre += step.head<2>();
        next.a += step[2];
        next.b += step[3];
        next.angle += step[4];
        if (!isSound(next)) {
            damping *= 10;
            continue;
        }
        Comparison then(next, path);
        if (then.sum < now.sum) {
            const bool settled = now.sum - then.sum < kSettled * now.sum;
            e = next;
            now = std::move(then);
            damping = std::max(damping / 10, 1e-9);
            if (settled) {
                break;
            }
        } else {
            damping *= 10;
        }
    }
    if (e.a < e.b) {
        std::swap(e.a, e.b);
        e.angle += kPi / 2;
    }
    return e;
}
}  // namespace

EllipseFrame::EllipseFrame(const Ellipse& ellipse)
    : _ellipse(ellipse), _cosine(std::cos(ellipse.angle)), _sine(std::sin(ellipse.angle)) {}

Vec2 EllipseFrame::inward(const Vec2& point) const {
    const Vec2 d = point - _ellipse.centre;
    return {d.x() * _cosine + d.y() * _sine, d.y() * _cosine - d.x() * _sine};
}

Vec2 EllipseFrame::nearest(const Vec2& local) const {
    // By the evolute: each round replaces the outline by its circle of curvature at the latest guess. Converges
    // from everywhere, in the first quadrant.
    constexpr int kRounds = 3;
    const double a = _ellipse.a;
    const double b = _ellipse.b;
    const double px = std::abs(local.x());
    const double py = std::abs(local.y());
    double tx = std::numbers::sqrt2 / 2;
    double ty = tx;
    for (int i = 0; i < kRounds; ++i) {
        const double ex = (a * a - b * b) * tx * tx * tx / a;
        const double ey = (b * b - a * a) * ty * ty * ty / b;
        const Vec2 radius(a * tx - ex, b * ty - ey);
        const Vec2 towards(px - ex, py - ey);
        const double reach = std::sqrt(radius.squaredNorm() / std::max(towards.squaredNorm(), 1e-24));
        tx = std::clamp((towards.x() * reach + ex) / a, 0.0, 1.0);
        ty = std::clamp((towards.y() * reach + ey) / b, 0.0, 1.0);
        const double norm = std::max(std::sqrt(tx * tx + ty * ty), 1e-12);
        tx /= norm;
        ty /= norm;
    }
    return {std::copysign(tx, local.x()), std::copysign(ty, local.y())};
}

std::optional<Ellipse> fitEllipse(const Path& path) {
    // Every second point tells as much.
    Path half;
    half.reserve(path.size() / 2 + 1);
    for (std::size_t i = 0; i < path.size(); i += 2) {
        half.push_back(path[i]);
    }
    const std::optional<Ellipse> start = directFit(half);
    return start ? std::optional(refined(*start, half)) : std::nullopt;
}

std::optional<Ellipse> fitCircle(const Path& path) {
    // Algebraic (Kasa), then two rounds of moving centre and radius by the distances' means.
    Eigen::Matrix3d normal = Eigen::Matrix3d::Zero();
    Eigen::Vector3d right = Eigen::Vector3d::Zero();
    for (const Vec2& p : path) {
        const Eigen::Vector3d row(p.x(), p.y(), 1);
        normal += row * row.transpose();
        right += row * p.squaredNorm();
    }
    const Eigen::FullPivLU<Eigen::Matrix3d> lu(normal);
    if (!lu.isInvertible()) {
        return {};
    }
    const Eigen::Vector3d solution = lu.solve(right);
    Ellipse circle;
    circle.centre = solution.head<2>() / 2;
    circle.a = circle.b = std::sqrt(std::max(solution[2] + circle.centre.squaredNorm(), 0.0));
    for (int round = 0; round < 5 && isSound(circle); ++round) {
        Eigen::Matrix3d gauss = Eigen::Matrix3d::Zero();
        Eigen::Vector3d slope = Eigen::Vector3d::Zero();
        for (const Vec2& p : path) {
            const Vec2 apart = p - circle.centre;
            const double r = std::max(apart.norm(), 1e-9);
            const Eigen::Vector3d change(apart.x() / r, apart.y() / r, 1);
            gauss += change * change.transpose();
            slope += change * (r - circle.a);
        }
        gauss.diagonal().array() += 1e-12;
        const Eigen::Vector3d step = gauss.ldlt().solve(slope);
        circle.centre += step.head<2>();
        circle.a = circle.b = circle.a + step[2];
    }
    return isSound(circle) ? std::optional(circle) : std::nullopt;
}

EllipseTour tourOf(const Ellipse& ellipse, const Path& path) {
    EllipseTour tour;
    double sum = 0;
    double last = 0;
    double there = 0;
    double forward = 0;
    double backward = 0;
    const EllipseFrame frame(ellipse);
    for (std::size_t i = 0; i < path.size(); ++i) {
        const Vec2 local = frame.inward(path[i]);
        const Vec2 nearest = frame.nearest(local);
        const double t = std::atan2(nearest.y(), nearest.x());
        const double squared = (local - frame.at(nearest)).squaredNorm();
        sum += squared;
        tour.furthest = std::max(tour.furthest, squared);
        if (i == 0) {
            tour.start = there = t;
        } else {
            const double step = std::remainder(t - last, 2 * kPi);
            there += step;
            (step > 0 ? forward : backward) += std::abs(step);
        }
        last = t;
    }
    tour.end = there;
    tour.rms = std::sqrt(sum / static_cast<double>(path.size()));
    tour.furthest = std::sqrt(tour.furthest);
    tour.backward = std::min(forward, backward);
    return tour;
}

}  // namespace dabcanvas
