#!/usr/bin/env bash
# Signs programs with a throw-away certificate, verifies, and takes the signature away again, which must leave the same bytes:
# signing.sh PROGRAM...
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
fail() { echo "signing.sh: $*" >&2; exit 1; }

openssl req -x509 -newkey rsa:2048 -nodes -keyout "$folder/key.pem" -out "$folder/certificate.pem" -days 2 -subj '/CN=Throw-away' \
  -addext extendedKeyUsage=codeSigning -addext keyUsage=digitalSignature 2> /dev/null
for program; do
  name=${program##*/}
  signed=$folder/signed-$name
  plain=$folder/plain-$name
  osslsigncode sign -certs "$folder/certificate.pem" -key "$folder/key.pem" -h sha256 -n KZEditor -in "$program" -out "$signed" \
    > "$folder/log" || { cat "$folder/log" >&2; fail "$name cannot be signed"; }
  osslsigncode verify -CAfile "$folder/certificate.pem" -in "$signed" > "$folder/log" ||
    { cat "$folder/log" >&2; fail "the signature of $name is not accepted"; }
  # What was changed after signing must be noticed, or the verification above says nothing.
  printf 'X' | dd of="$signed" bs=1 seek=4096 conv=notrunc status=none
  if osslsigncode verify -CAfile "$folder/certificate.pem" -in "$signed" > /dev/null 2>&1; then fail "a change of $name is not noticed"; fi
  dd if="$program" of="$signed" bs=1 skip=4096 seek=4096 count=1 conv=notrunc status=none
  osslsigncode remove-signature -in "$signed" -out "$plain" > /dev/null || fail "the signature of $name cannot be taken away"
  cmp -s "$program" "$plain" || fail "$name is not the same without its signature"
done
