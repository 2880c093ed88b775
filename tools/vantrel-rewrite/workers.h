// Work on several threads.
#ifndef VANTREL_REWRITE_WORKERS_H
#define VANTREL_REWRITE_WORKERS_H

#include <cstddef>
#include <functional>

namespace vantrel_rewrite {

// Calls work(worker, index) once for each index below `count`, on up to `workers` threads, where `worker` is the number
// of the thread; on fewer where the system allows no more. Returns when all is done. What a call throws ends the work
// and is thrown on; if an interrupt is requested, Interrupted is thrown.
void for_each_index(unsigned workers, size_t count, const std::function<void(unsigned worker, size_t index)>& work);

}  // namespace vantrel_rewrite

#endif
