// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "reader/bookmarks/bookmark_list.h"

#include <QPushButton>
#include <QWidget>

#include <functional>

namespace lumen {

/// The pane of bookmarks beside the text. Reading and writing the file is the reader window's
/// part, and so is going to a bookmark.
class BookmarkPane : public QWidget // no Q_OBJECT: moc cannot read the members' names
{
public:
    explicit BookmarkPane(QWidget* parent = nullptr);

    void setReferences(const QStringList& references);
    const QStringList& references() const { return m_list.references(); }

    /// The short reference of the reader's current verse, "" when there is none.
    std::function<QString()> currentReference;
    /// Goes to the selected bookmark.
    std::function<void(const QString& reference)> onMove;
    /// The user has changed the list.
    std::function<void()> onChanged;

    ListBox* lst책갈피 = named<ListBox>(u"lst책갈피", u"책갈피");
    QPushButton* cmd책갈피추가 = named<QPushButton>(u"cmd책갈피추가", u"추가(&A)");
    QPushButton* cmd책갈피삭제 = named<QPushButton>(u"cmd책갈피삭제", u"삭제(&D)");
    QPushButton* cmd책갈피위로 = named<QPushButton>(u"cmd책갈피위로", u"위로(&U)");
    QPushButton* cmd책갈피아래로 = named<QPushButton>(u"cmd책갈피아래로", u"아래로(&N)");
    QPushButton* cmd책갈피이동 = named<QPushButton>(u"cmd책갈피이동", u"이동(&G)");

    /// Marks the reader's current verse; one that is marked already is ignored.
    void cmd책갈피추가_Click();

private:
    void layOut();
    void wire();
    void cmd책갈피이동_Click();
    /// Runs a change on the list, the selection of the box being the list's, and shows it.
    void change(void (BookmarkList::*work)());
    void showList();

    BookmarkList m_list;
};

} // namespace lumen
