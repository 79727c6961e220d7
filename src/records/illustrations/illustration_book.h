// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/data_control.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace lumen {

class JetEngine;
struct AppState;

struct Illustration
{
    int num = 0; ///< 0 for one that is not stored yet
    QString title;
    QString category;
    std::optional<QString> body; ///< nothing where the column is Null
};

struct IllustrationTitle
{
    int num = 0;
    QString title;
};

/// Where a search looks.
enum class IllustrationScope { All, Title, Category, Body };

/// The user's collection of illustrations. Errors are JetErrors; what failed is undone.
class IllustrationBook
{
public:
    IllustrationBook(JetEngine& jet, const AppState& state);

    void open();
    void close() { m_data.Close(); }
    bool isOpen() const { return m_data.Database() != nullptr; }

    /// In the order of their letters; "" stands for records without one.
    QStringList categories();
    /// Of a category, by title.
    std::vector<IllustrationTitle> titlesIn(const QString& category);
    std::optional<Illustration> find(int num);
    /// The term loses every "*", "%" and "'" first; an empty one fits all.
    std::vector<IllustrationTitle> search(const QString& term, IllustrationScope scope);
    /// Stores one anew or over its former self, and gives its number.
    int save(const Illustration& illustration);
    void remove(int num);

private:
    std::vector<IllustrationTitle> titles(const QString& condition);

    DataControl m_data;
};

/// What a search looks for: the trimmed text without its wildcards and quotes.
QString cleanedTerm(QString text);

} // namespace lumen
