#include "fluidnc/Transcript.h"

#include <algorithm>

namespace fluidnc {

namespace {

std::ptrdiff_t at(size_t index) {
    return static_cast<std::ptrdiff_t>(index);
}

}  // namespace

Transcript::Transcript(size_t limit) : ring_(limit) {}

// A ring rather than erasing from the front: a console read byte by byte would
// otherwise move the whole buffer for every byte once it is full.
void Transcript::append(const uint8_t* data, size_t len) {
    const size_t limit = ring_.size();
    if (len >= limit) {
        std::copy(data + (len - limit), data + len, ring_.begin());
        start_ = 0;
        size_ = limit;
        return;
    }
    for (size_t i = 0; i < len; ++i) {
        ring_[(start_ + size_) % limit] = data[i];
        if (size_ < limit) {
            ++size_;
        } else {
            start_ = (start_ + 1) % limit;
        }
    }
}

// The oldest byte stands at `start_`; the kept bytes wrap round the ring's end.
std::vector<uint8_t> Transcript::bytes() const {
    const size_t end = std::min(start_ + size_, ring_.size());
    std::vector<uint8_t> out(ring_.begin() + at(start_), ring_.begin() + at(end));
    out.insert(out.end(), ring_.begin(), ring_.begin() + at(size_ - out.size()));
    return out;
}

}  // namespace fluidnc
