#include "workers.h"

#include <atomic>
#include <exception>
#include <system_error>
#include <thread>
#include <vector>

#include "interrupt.h"

namespace vantrel_rewrite {

void for_each_index(unsigned workers, size_t count, const std::function<void(unsigned, size_t)>& work) {
    std::atomic<size_t> next{0};
    std::vector<std::exception_ptr> thrown(workers);
    const auto run = [&](unsigned worker) {
        try {
            for (size_t index = next++; index < count; index = next++) {
                command::interrupt::check();
                work(worker, index);
            }
        } catch (...) {
            thrown[worker] = std::current_exception();
            next = count;
        }
    };
    // Not std::jthread, which not every C++ library has yet: nothing between here and the joins may throw.
    std::vector<std::thread> threads;
    threads.reserve(workers);
    for (unsigned worker = 1; worker < workers && worker < count; ++worker) {
        try {
            threads.emplace_back(run, worker);
        } catch (const std::system_error&) {
            break;  // there can be no more of them; those that are there do the work
        }
    }
    run(0);
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::exception_ptr& exception : thrown) {
        if (exception) {
            std::rethrow_exception(exception);
        }
    }
}

}  // namespace vantrel_rewrite
