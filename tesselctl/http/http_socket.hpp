// The TCP socket at which a server answers HTTP.
#pragma once

#include <string>

#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

class HttpSocket {
 public:
  // "[ADDRESS:]PORT": without an address that of this machine for itself, with port 0 one that is
  // free. Listens. Throws Fault.
  explicit HttpSocket(const std::string &where);

  int get() const { return socket_.get(); }
  // "http://127.0.0.1:9100/"
  const std::string &url() const { return url_; }
  // Whether a request for that host, as its header names it, is for this server. A page from
  // elsewhere can have a name of its own stand for the address of this machine, and would then be
  // given what this machine alone may see.
  bool is_for(std::string_view host) const;

 private:
  Descriptor socket_;
  std::string url_;
  bool is_local_ = false;
};

}  // namespace tesselctl
