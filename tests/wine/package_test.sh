#!/usr/bin/env bash
# usage: package_test.sh ZIP SAMPLE_HOST PRESSER    (in a Windows: see with-wine)
# Does with the package what a user does: unpacks it, registers the component, shows the wizard on a model of the
# package, takes the registration back. Then, unregistered and with a manifest beside it, the program finds the
# component next to itself.
set -uo pipefail
zip=$1 sample_host=$2 presser=$3
work=$(mktemp -d)
class='HKCR\CLSID\{5691A72A-A7B2-11D5-8A77-00104B7EA6CB}'
trap 'rm -rf "$work"' EXIT

fail() {
  echo "package: $*"
  exit 1
}

known() { timeout 300 wine reg query "$class" >/dev/null 2>&1; }

show_and_close() {  # what the host says
  timeout 300 wine "$work/host.exe" "$folder/samples/hospitals.kst" >"$work/said" 2>&1 &
  timeout 300 wine "$presser" --seconds 120 close >/dev/null || { kill $!; wait; } 2>/dev/null
  wait
  tr -d '\r' <"$work/said" | xargs -d '\n'
}

unzip -q "$zip" -d "$work" || fail "$zip can't be unpacked"
folder=$(ls -d "$work"/*/)
folder=${folder%/}
cp "$sample_host" "$work/host.exe"

known && fail "the class is registered before"
said=$(timeout 300 wine cmd /c "$(winepath -w "$folder/register.cmd")" | tr -d '\r')
[ "${said#Tarnwise_DEA.TRN_DEA is registered for }" != "$said" ] || fail "register.cmd said '$said'"
known || fail "register.cmd left the class unregistered"
shown="Select a method to make value judgments between the attributes. cancelled"
said=$(show_and_close)
[ "$said" = "$shown" ] || fail "registered, the host said '$said'"
said=$(timeout 300 wine cmd /c "$(winepath -w "$folder/unregister.cmd")" | tr -d '\r')
[ "${said#Tarnwise_DEA.TRN_DEA is no longer registered for }" != "$said" ] || fail "unregister.cmd said '$said'"
known && fail "unregister.cmd left the class registered"

mv "$folder/Tarnwise_DEA.dll" "$work"
status=0
said=$(timeout 300 wine cmd /c "$(winepath -w "$folder/register.cmd")" | tr -d '\r') || status=$?
case $said in
  *"was not registered. Status 3"*"could not be loaded"*) ;;
  *) fail "without the DLL register.cmd said '$said'" ;;
esac

said=$(show_and_close)
[ "$said" != "$shown" ] || fail "the host found the component though it was unregistered"
cp "$folder/Tarnwise_DEA.manifest" "$work"
cp "$folder/Application.manifest" "$work/host.exe.manifest"
said=$(show_and_close)
[ "$said" = "$shown" ] || fail "with a manifest, the host said '$said'"
echo "package: registered, shown, unregistered, shown by its manifest"
