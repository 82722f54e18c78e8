#pragma once
#include <ctime>

namespace velmora::bench {

// Processor time of this thread in milliseconds: the machine that runs the
// benchmarks is shared, and wall time would count the other programs'
// turns.
inline double ThreadMs() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// Processor time of the whole process, every thread counted: a wait that
// spins shows here, one that sleeps doesn't.
inline double ProcessMs() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The processor time of one round of `work`, averaged over `rounds`.
template <class Work>
double AverageMs(int rounds, Work work) {
  const double start = ThreadMs();
  for (int i = 0; i < rounds; ++i) work();
  return (ThreadMs() - start) / rounds;
}

}  // namespace velmora::bench
