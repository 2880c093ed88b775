// A file descriptor that is closed when it is no longer needed.
#ifndef VANTREL_DESCRIPTOR_H
#define VANTREL_DESCRIPTOR_H

#include <unistd.h>

namespace outside {

class Descriptor {
  public:
    // number   negative for none
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int number() const { return number_; }

  private:
    int number_;
};

}  // namespace outside

#endif
