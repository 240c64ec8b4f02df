#include "app/PortFlapping.h"

void PortFlapping::sample(qint64 atMs, bool present) {
    if (present && present_ == false) {
        returns_.push_back(atMs);
    }
    present_ = present;
    while (!returns_.empty() && returns_.front() < atMs - kWindowMs) {
        returns_.pop_front();
    }
}

bool PortFlapping::keepsRestarting() const {
    return static_cast<int>(returns_.size()) > kTolerated;
}
