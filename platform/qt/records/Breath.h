#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

namespace kel::qt {

/// Keeps a window alive while something long is done: it answers what has come whenever a breath is due.
class Breath {
public:
    Breath() { Since_.start(); }

    bool isDue() const { return Since_.elapsed() >= LongestSilence; }
    void take() {
        QCoreApplication::processEvents();
        Since_.restart();
    }

private:
    /// Milliseconds. What is done in one go between two questions, and painted in a breath, comes on top.
    static constexpr int LongestSilence = 20;

    QElapsedTimer Since_;
};

}  // namespace kel::qt
