// SPDX-License-Identifier: MIT
// What a resize costs in Qt when it lays out the shared dialog's nested box layouts anew.
#include "bench/DialogText.h"
#include "bench/Measure.h"

#include <QApplication>
#include <QBuffer>
#include <QLayout>
#include <QPushButton>
#include <QUiLoader>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace {

std::vector<QRect> places(const QWidget& dialog, const QList<QPushButton*>& buttons) {
    std::vector<QRect> result;
    for (const QPushButton* button : buttons)
        result.emplace_back(button->mapTo(&dialog, QPoint()), button->size());
    return result;
}

} // namespace

int main(int argc, char** argv) {
    const auto counts = bench::counts(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    for (const int count : counts) {
        QByteArray text = QByteArray::fromStdString(bench::qtText(bench::mixedDialog(count)));
        QBuffer buffer(&text);
        buffer.open(QBuffer::ReadOnly);
        const std::unique_ptr<QWidget> dialog(QUiLoader().load(&buffer));
        bench::require(dialog != nullptr, "the loader made the dialog");

        // Layouts of hidden widgets wait, so the dialog is shown. Painting is no part of a layout: it is off.
        dialog->setUpdatesEnabled(false);
        dialog->show();
        QApplication::processEvents();
        const QSize least = dialog->minimumSizeHint();
        const QSize sizes[2] = {least + QSize(400, 400), least + QSize(800, 800)};

        const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
        int turn = 0;
        const auto resize = [&] {
            turn = 1 - turn;
            dialog->resize(sizes[turn]);
            dialog->layout()->activate();
        };
        resize();
        const std::vector<QRect> before = places(*dialog, buttons);
        resize();
        const std::vector<QRect> after = places(*dialog, buttons);
        bench::require(std::ranges::mismatch(before, after, std::not_equal_to()).in1 == before.end(),
                       "a resize moves or stretches every button at once");
        bench::measure("qt-resize", count, bench::repeatsFor(count), count,
                       {.prepare = {}, .body = resize, .clear = [] { QApplication::processEvents(); }});
    }
}
