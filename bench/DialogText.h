// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace bench {

/// What stands in the dialog that all benchmarks share. A column has its children side by side, a row has
/// them one below the other.
enum class Kind { Column, Row, Label, Separator, PushButton };

/// A node of the dialog's description.
struct Item {
    Kind kind = Kind::Row;
    std::string text; ///< shown by a label or a push button
    std::string id;   ///< by which the application finds a push button; others have none
    std::vector<Item> children;
};

/// A tree with 'controls' leaves: rows of ten controls, ten of them in a column, ten of those in a row, and
/// so on up. Of ten controls six are push buttons, three labels and one a separator.
Item mixedDialog(int controls);

/// The same tree with push buttons only.
Item buttonDialog(int controls);

/// The groups below and including 'item'.
int countGroups(const Item& item);

/// The description as a Panelix dialog file, with one top-level dialog.
std::string panelixText(const Item& item);

/// The description as a Qt Designer file, with one QWidget. Groups are nested layouts, as its designer makes
/// them, not widgets of their own: that is the cheaper form for Qt.
std::string qtText(const Item& item);

} // namespace bench
