// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/dictionary_tabs.h"

#include "forms/guarded.h"
#include "platform/controls/bars/wrapping_row.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

void DictionaryTab::enter()
{
    if (takeStock())
        tell(lookup().status());
}

void DictionaryTab::layOut(const DictionaryControls& controls, QPushButton& search)
{
    controls.word.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* words = new QHBoxLayout;
    words->addWidget(&controls.word, 1);
    words->addWidget(&search);
    auto* options = new WrappingRow;
    for (QRadioButton* option : controls.matches)
        if (option != nullptr)
            options->addWidget(option);
    if (controls.source != nullptr)
        options->addWidget(controls.source);
    auto* texts = new QHBoxLayout;
    texts->addWidget(&controls.near, 1);
    texts->addWidget(&controls.meaning, 2);
    auto* layout = new QVBoxLayout(m_page);
    layout->addLayout(words);
    layout->addLayout(options);
    layout->addLayout(texts, 1);
    controls.meaning.setReadOnly(true);
    m_page->setFocusProxy(&controls.word);

    lookup().tell = [this](const QString& status) { tell(status); };
    QObject::connect(&search, &QPushButton::clicked, m_page, [this, &word = controls.word] {
        guarded(m_host.services, m_page, [&] { lookup().search(word.currentText()); });
    });
}

BibleDictionary::BibleDictionary(const PanelHost& host)
    : DictionaryTab(host, kBibleDictionary.module, &InstalledFlags::bibleDic),
      m_lookup(host.services, host.state, kBibleDictionary, m_controls)
{
    opt시작->setChecked(true);
    layOut(m_controls, *cmd성경사전검색);
}

EnglishDictionary::EnglishDictionary(const PanelHost& host)
    : DictionaryTab(host, kEnglishDictionary.module, &InstalledFlags::ekDic),
      m_lookup(host.services, host.state, kEnglishDictionary, m_controls)
{
    ekopt시작->setChecked(true);
    layOut(m_controls, *cmd영한영사전검색);
}

} // namespace lumen
