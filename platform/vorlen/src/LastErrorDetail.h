#pragma once
// The detail given with the calling thread's last error (inside the
// library, to hand an error from one thread to another).
namespace Vorlen {
namespace Infra {

const char* lastErrorDetail();

} // namespace Infra
} // namespace Vorlen
