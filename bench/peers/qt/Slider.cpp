// SPDX-License-Identifier: MIT
// What a new value of a slider costs in Qt, with a slot that hears it.
#include "bench/Measure.h"

#include <QApplication>
#include <QSlider>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 1000);
    slider.resize(600, 30);
    slider.show();
    QApplication::processEvents();
    int sum = 0;
    QObject::connect(&slider, &QSlider::valueChanged, [&sum](int value) { sum += value; });
    constexpr int calls = 100;
    bench::measure("qt-slider-value", 1, 301, calls,
                   {.prepare =
                        [&] {
                            QApplication::processEvents();
                            sum = 0;
                        },
                    .body =
                        [&] {
                            for (int i = 1; i <= calls; ++i)
                                slider.setValue(i);
                        },
                    .clear = {}});
    bench::require(sum == calls * (calls + 1) / 2, "each value was heard");
}
