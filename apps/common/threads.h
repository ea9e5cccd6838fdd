#pragma once

/// @file
/// Work that is shared between threads.

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <future>
#include <vector>

namespace qorvex::apps {

/// Calls the function on that many threads at once, of which the caller's is one. An exception is
/// thrown on after all of them have returned.
template <class Function>
void RunOnThreads(std::size_t threads, const Function& function) {
  std::vector<std::future<void>> others;
  for (std::size_t i = 1; i < threads; ++i)
    others.push_back(std::async(std::launch::async, [&function] { function(); }));
  function();
  for (std::future<void>& other : others) other.get();
}

/// Calls the function with every index below the count, on at most that many threads.
template <class Function>
void ForEachIndex(std::size_t count, std::size_t threads, const Function& function) {
  std::atomic<std::size_t> next = 0;
  RunOnThreads(std::min(count, threads), [&] {
    for (std::size_t i = next++; i < count; i = next++) function(i);
  });
}

/// Divides the indices below the count into at most that many blocks of nearly the same length, and
/// calls function(block, begin, end) for each of them, on a thread of its own.
template <class Function>
void ForEachBlock(std::size_t count, std::size_t threads, const Function& function) {
  const std::size_t blocks = std::clamp<std::size_t>(count, 1, threads);
  ForEachIndex(blocks, blocks,
               [&](std::size_t i) { function(i, count * i / blocks, count * (i + 1) / blocks); });
}

}  // namespace qorvex::apps
