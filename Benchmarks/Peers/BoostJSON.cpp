// The whole of Boost.JSON, which is used from its headers otherwise. It is a shared library of its own because the
// foundation's archive holds parts of it too.

#include <boost/json/src.hpp>
