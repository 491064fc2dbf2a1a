#ifndef CLIENT_H_
#define CLIENT_H_

#include <string>

__attribute__((visibility("default"))) std::string ContentOf(const std::string& resource_name);

#endif  // CLIENT_H_
