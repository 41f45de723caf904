// lumenote link: there is nothing to link here.
#include "Command.h"

namespace lumenote::tool {

int Link(Arguments) {
  throw Failure("sous Windows, une application se trouve là où elle est installée");
}

}  // namespace lumenote::tool
