#include "backend/directory/index/TextFinder.h"

#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace mindloft {

// The first and the last byte have been compared already when this is asked.
bool TextFinder::IsAt(const char* place) const {
  return text_.size() < 3 || std::memcmp(place + 1, text_.data() + 1, text_.size() - 2) == 0;
}

std::size_t TextFinder::Find(std::string_view in, std::size_t from) const {
  std::size_t at = from;
#ifdef __SSE2__
  // Sixteen places at once: where the first and the last byte both agree the rest is compared. The last byte
  // tells more than the second one does in scripts whose characters share their first bytes.
  constexpr std::size_t kWidth = sizeof(__m128i);
  const std::size_t last = text_.size() - 1;
  const __m128i firstByte = _mm_set1_epi8(text_.front());
  const __m128i lastByte = _mm_set1_epi8(text_.back());
  auto load = [](const char* bytes) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)); };
  for (; at + last + kWidth <= in.size(); at += kWidth) {
    const char* place = in.data() + at;
    auto agree =
        _mm_and_si128(_mm_cmpeq_epi8(load(place), firstByte), _mm_cmpeq_epi8(load(place + last), lastByte));
    for (auto mask = static_cast<unsigned>(_mm_movemask_epi8(agree)); mask != 0; mask &= mask - 1) {
      auto offset = static_cast<std::size_t>(std::countr_zero(mask));
      if (IsAt(place + offset)) return at + offset;
    }
  }
#endif
  return in.find(text_, at);
}

}  // namespace mindloft
