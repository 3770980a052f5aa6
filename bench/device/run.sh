#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the benchmark of the device utilities and prints its table. Runs as root in a network namespace
# of its own: a web server on its loopback, echo requests allowed.  bench/device/run.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

if [ "${1:-}" != --inside ]; then
  ensure_packages run test bench
  build bench bench-device orvek-device
  [ "$(id -u)" -eq 0 ] || die "a network namespace is needed: run it as root"
  exec unshare --net "bench/device/${0##*/}" --inside
fi

place=$(mktemp -d)
trap 'nginx -p "$place" -c nginx.conf -s stop 2>/dev/null || true; rm -rf "$place"' EXIT
ip link set lo up
echo 0 0 >/proc/sys/net/ipv4/ping_group_range
cat >"$place/nginx.conf" <<CONF
pid nginx.pid; error_log error.log; user root; events {}
http { access_log off; sendfile on; root .;
  client_body_temp_path t1; proxy_temp_path t2; fastcgi_temp_path t3; uwsgi_temp_path t4; scgi_temp_path t5;
  server { listen 127.0.0.1:8080; }
  server { listen 127.0.0.1:8443 ssl; ssl_certificate cert.pem; ssl_certificate_key key.pem; } }
CONF
openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=printer \
  -keyout "$place/key.pem" -out "$place/cert.pem" 2>/dev/null
head -c 1K /dev/urandom >"$place/1k"
head -c 1M /dev/urandom >"$place/1m"
head -c 100M /dev/urandom >"$place/100m"
chmod 755 "$place"
nginx -p "$place" -c nginx.conf 2>/dev/null
build-bench/bin/bench-device build-bench/bin/orvek-device http://127.0.0.1:8080/ https://127.0.0.1:8443/
