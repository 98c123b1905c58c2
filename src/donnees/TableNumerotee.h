#pragma once

#include <vector>

/// A table of capacite entries numbered from 1, as operators and machines number lines and tools.
template <typename Entree>
class TableNumerotee
{
public:
    explicit TableNumerotee(int capacite)
        : m_entrees(static_cast<std::size_t>(capacite))
    {
    }

    /// The entry at place, 1 to capacite. Raises std::out_of_range for any other.
    Entree &operator()(int place) { return m_entrees.at(static_cast<std::size_t>(place - 1)); }
    const Entree &operator()(int place) const { return m_entrees.at(static_cast<std::size_t>(place - 1)); }

    auto begin() { return m_entrees.begin(); }
    auto end() { return m_entrees.end(); }

    bool operator==(const TableNumerotee &) const = default;

private:
    std::vector<Entree> m_entrees;
};
