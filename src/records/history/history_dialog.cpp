// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/history/history_dialog.h"

#include "forms/guarded.h"
#include "platform/controls/twips.h"
#include "records/export/record_document.h"
#include "text/rtf/rtf_reader.h"
#include "text/rtf/rtf_writer.h"

#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kWidth = 10500; // twips
constexpr int kHeight = 7200;

/// A state as the boxes would show it.
class StateBoxes : public RecordBoxes
{
public:
    explicit StateBoxes(RecordValues values) : m_values(std::move(values)) {}
    QString plainText(int text) const override
    {
        return rtfToPlainText(toRtfBytes(rtf(text)), LastPar::EndsDocument);
    }
    QString rtf(int text) const override
    {
        return m_values.rtf[static_cast<std::size_t>(text)].value_or(QString());
    }
    QString category() const override { return m_values.category.value_or(QString()); }
    QDate preachedDay() const override { return m_values.preached.value_or(QDate()); }
    QDate writtenDay() const override { return m_values.written.value_or(QDate()); }

private:
    RecordValues m_values;
};

} // namespace

HistoryDialog::HistoryDialog(const RecordProfile& profile, Services& services,
                             RecordManager& manager, QWidget* parent)
    : QDialog(parent), m_profile(profile), m_services(services), m_manager(manager)
{
    setObjectName(u"dlogHistory"_s);
    setWindowTitle(u"이전 상태와 지운 것"_s);
    layOut();
    lstStates->onClick = [this] { showState(); };
    lstStates->onDblClick = [this] { bringBack(); };
    for (const QRadioButton* option : {opStates, opDeleted})
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                fill();
        });
    connect(cmd되살리기, &QPushButton::clicked, this, [this] { bringBack(); });
    connect(cmd닫기, &QPushButton::clicked, this, &QDialog::reject);
}

void HistoryDialog::layOut()
{
    resize(toPixels(kWidth), toPixels(kHeight));
    // Paper, as the boxes are: texts bring colours that were chosen for it.
    txState->setBackColor(RGB(255, 255, 255));
    auto* options = new QHBoxLayout;
    options->addWidget(opStates);
    options->addWidget(opDeleted);
    options->addStretch();
    auto* halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(lstStates);
    halves->addWidget(txState);
    halves->setStretchFactor(0, 1);
    halves->setStretchFactor(1, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmd되살리기);
    buttons->addWidget(cmd닫기);
    cmd닫기->setAutoDefault(false);
    auto* column = new QVBoxLayout(this);
    column->addLayout(options);
    column->addWidget(halves, 1);
    auto* note = new QLabel(u"이전 상태는 자료마다 20개까지, 지운 자료는 30일 동안 남습니다."_s);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addLayout(buttons);
}

void HistoryDialog::Form_Load()
{
    opStates->setChecked(true);
    lstStates->setFocus();
}

void HistoryDialog::fill()
{
    lstStates->Clear();
    m_states.clear();
    guarded(m_services, this, [this] {
        m_states = opStates->isChecked() ? m_manager.formerStates() : m_manager.deletedRecords();
    });
    QStringList lines;
    for (const FormerState& state : m_states)
        lines << state.when.toString(u"yyyy-MM-dd HH:mm  "_s) + state.title.simplified();
    lstStates->AddItems(lines);
    lstStates->setListIndex(m_states.empty() ? -1 : 0);
    showState();
}

void HistoryDialog::showState()
{
    const int index = lstStates->ListIndex();
    const bool isChosen = index >= 0 && index < static_cast<int>(m_states.size());
    cmd되살리기->setEnabled(isChosen);
    if (!isChosen) {
        txState->setText(u"남아 있는 것이 없습니다."_s);
        return;
    }
    guarded(m_services, this, [this, index] {
        const FormerState& state = m_states[static_cast<std::size_t>(index)];
        const StateBoxes boxes(m_manager.valuesOf(state));
        txState->takeDocument(recordDocument(m_profile, boxes, RecordFonts::AsWritten));
    });
}

void HistoryDialog::bringBack()
{
    const int index = lstStates->ListIndex();
    if (index < 0 || index >= static_cast<int>(m_states.size()))
        return;
    m_chosen = m_states[static_cast<std::size_t>(index)];
    accept();
}

} // namespace lumen
