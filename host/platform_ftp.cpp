// FTP upload of a buffer. User name and password are handed over as options, so
// that they never stand in a URL or a message.
#include <arpa/inet.h>
#include <curl/curl.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "host/equipment.h"
#include "sys_context/platform.h"

namespace {

constexpr int32_t kFailure = -1;

struct Source {
  const char* data;
  size_t left;
};

size_t ReadSource(char* buffer, size_t size, size_t count, void* user) {
  Source* source = static_cast<Source*>(user);
  const size_t amount = std::min(size * count, source->left);
  memcpy(buffer, source->data, amount);
  source->data += amount;
  source->left -= amount;
  return amount;
}

using Url = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;
using Transfer = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

// The address, four decimal numbers, and the file name come from the operator: each is
// set as the part that it is, so that neither can smuggle in another.
Url MakeUrl(const char* address, const char* file) {
  in_addr unused = {};
  if (inet_pton(AF_INET, address, &unused) != 1) {
    return {nullptr, curl_url_cleanup};
  }
  Url url(curl_url(), curl_url_cleanup);
  const std::string port = std::to_string(sysctx::TheEquipment().ftp_port);
  const std::string path = std::string("/") + file;
  const bool made =
      url != nullptr && curl_url_set(url.get(), CURLUPART_SCHEME, "ftp", 0) == CURLUE_OK &&
      curl_url_set(url.get(), CURLUPART_HOST, address, 0) == CURLUE_OK &&
      curl_url_set(url.get(), CURLUPART_PORT, port.c_str(), 0) == CURLUE_OK &&
      curl_url_set(url.get(), CURLUPART_PATH, path.c_str(), CURLU_URLENCODE) == CURLUE_OK;
  if (!made) {
    url.reset();
  }
  return url;
}

void SetPeer(CURL* curl, CURLU* url, const char* user, const char* password) {
  curl_easy_setopt(curl, CURLOPT_CURLU, url);
  curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "ftp");
  curl_easy_setopt(curl, CURLOPT_PROXY, "");
  curl_easy_setopt(curl, CURLOPT_IPRESOLVE, CURL_IPRESOLVE_V4);
  curl_easy_setopt(curl, CURLOPT_USERNAME, user);
  curl_easy_setopt(curl, CURLOPT_PASSWORD, password);
}

void SetSource(CURL* curl, Source* source) {
  curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
  curl_easy_setopt(curl, CURLOPT_READFUNCTION, ReadSource);
  curl_easy_setopt(curl, CURLOPT_READDATA, source);
  curl_easy_setopt(curl, CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(source->left));
}

// The time-out bounds each silence of the server, not the whole transfer.
void SetTimeouts(CURL* curl, long seconds) {
  curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, seconds);
  curl_easy_setopt(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT, seconds);
  curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, 1L);
  curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, seconds);
}

int32_t Report(const char* what) {
  fprintf(stderr, "sysctx: FTP upload: %s\n", what);
  return kFailure;
}

}  // namespace

extern "C" int32_t upload_buf_by_ftp(const char* address, const char* user, const char* password,
                                     const char* file, const char* buffer, uint32_t length) {
  if (address == nullptr || user == nullptr || password == nullptr || file == nullptr ||
      buffer == nullptr) {
    return kFailure;
  }
  const Url url = MakeUrl(address, file);
  const Transfer curl(curl_easy_init(), curl_easy_cleanup);
  if (url == nullptr || curl == nullptr) {
    return Report("address or file name cannot be used");
  }
  Source source = {buffer, length};
  SetPeer(curl.get(), url.get(), user, password);
  SetSource(curl.get(), &source);
  SetTimeouts(curl.get(), sysctx::TheEquipment().ftp_timeout_seconds);
  const CURLcode code = curl_easy_perform(curl.get());
  return code == CURLE_OK ? 0 : Report(curl_easy_strerror(code));
}
