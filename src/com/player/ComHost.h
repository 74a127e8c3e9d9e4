// The registered COM class as our own host program drives it: by its interface, with the events by a connection point.
#pragma once

#include "play/Hosted.h"
#include "view/Driver.h"

namespace Tarnwise {

// COM on this thread for as long as this lives.
class ComApartment {
 public:
  ComApartment();
  ~ComApartment();
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
};

// A new object of the class; std::runtime_error says what is wrong where there can be none. With `screen` its steps are
// shown there: on the screen of an object made before. What its steps share can be had only from a component that was
// built for the player.
std::unique_ptr<Hosted> HostByCom(std::shared_ptr<Platform> screen);

// A script's user for the class: works inside a component that was built for it, on a screen that it makes.
std::unique_ptr<Driver> DriveByCom();

}  // namespace Tarnwise
