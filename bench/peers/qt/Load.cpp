// SPDX-License-Identifier: MIT
// What QUiLoader takes to make the shared dialog from its file.
#include "bench/DialogText.h"
#include "bench/Measure.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUiLoader>

#include <memory>

int main(int argc, char** argv) {
    const auto counts = bench::counts(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QTemporaryDir folder;
    for (const int count : counts) {
        const std::string text = bench::qtText(bench::mixedDialog(count));
        const QString name = folder.filePath("dialog.ui");
        QFile file(name);
        bench::require(file.open(QFile::WriteOnly) && file.write(text.data(), qint64(text.size())) > 0,
                       "the dialog's file can be written");
        file.close();

        QUiLoader loader;
        std::unique_ptr<QWidget> dialog;
        const auto load = [&] {
            QFile input(name);
            input.open(QFile::ReadOnly);
            dialog.reset(loader.load(&input));
        };
        load();
        bench::require(dialog && dialog->findChildren<QWidget*>().size() == count,
                       "the loader made all controls");
        dialog.reset();
        bench::measure("qt-load", count, bench::repeatsFor(count), count,
                       {.prepare = {}, .body = load, .clear = [&] { dialog.reset(); }});
    }
}
