// Room for a number of elements that is known when it is asked for, such as one for each byte of a method's code. As
// much as is usually enough is part of the object, so that most classes are rewritten without a block of memory for it.
#ifndef JAVA_CRW_DEMO_ROOM_H
#define JAVA_CRW_DEMO_ROOM_H

#include <cstddef>
#include <memory>

namespace crw {

template <typename T, size_t usual>
class Room {
  public:
    Room() = default;  // the elements have no values yet
    ~Room() = default;
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;

    // For so many elements. What was in the room before is lost.
    T* for_elements(size_t count) {
        if (count > capacity_) {
            capacity_ = 2 * count;  // so that a slightly larger need soon after is met, too
            block_.reset(new T[capacity_]);
            elements_ = block_.get();
        }
        return elements_;
    }

  private:
    T usual_[usual];
    std::unique_ptr<T[]> block_;
    T* elements_ = usual_;
    size_t capacity_ = usual;
};

}  // namespace crw

#endif
