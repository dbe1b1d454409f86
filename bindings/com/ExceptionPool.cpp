// The runtime keeps 70 kB in reserve for exceptions without memory, and leaves them to the end of the
// process. The library may be loaded and unloaded many times before that, so it gives them back when it goes.
namespace __gnu_cxx {
void __freeres();
}

namespace {

struct ExceptionPool {
  ~ExceptionPool() { __gnu_cxx::__freeres(); }
};

// Made before and so gone after everything else of the library.
__attribute__((init_priority(101))) const ExceptionPool g_pool;

}  // namespace
