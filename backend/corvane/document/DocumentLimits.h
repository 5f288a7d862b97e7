#pragma once

#include <cstddef>

#include "backend/directory/TextLengths.h"

namespace mindloft::Corvane {

// What a stored document may hold. The limits leave room for a thousand pages, and keep a hostile document
// from taking the memory or the time of whoever opens it.

/// What the directory can store: a character takes at least one byte.
inline constexpr std::size_t kMostDocumentBytes = kDocumentLength;
/// Of a plain text that is taken over: its document is larger.
inline constexpr std::size_t kMostPlainBytes = kMostDocumentBytes / 8;
inline constexpr std::size_t kMostParagraphs = 200'000;
/// Tables inside cells of tables; the outermost counts.
inline constexpr int kMostTableDepth = 4;
inline constexpr int kMostColumns = 60;
inline constexpr int kMostTableRows = 2'000;
inline constexpr std::size_t kMostCells = 20'000;
/// Elements inside elements, whatever they are.
inline constexpr int kMostElementDepth = 64;

}  // namespace mindloft::Corvane
