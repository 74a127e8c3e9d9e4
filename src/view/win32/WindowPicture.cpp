#include "view/win32/WindowPicture.h"

#include "runtime/windows/ComRef.h"
#include "view/win32/WinPaint.h"

#include <wincodec.h>

namespace Tarnwise {

namespace {

// The window's place as the screen shows it, the children's pixels included.
Bitmap PixelsOf(HWND window, int width, int height) {
  const HDC from = GetDC(window);
  const HDC to = CreateCompatibleDC(from);
  Bitmap bitmap(CreateCompatibleBitmap(from, width, height));
  {
    const Selected selected(to, bitmap.get());
    BitBlt(to, 0, 0, width, height, from, 0, 0, SRCCOPY);
  }
  DeleteDC(to);
  ReleaseDC(window, from);
  return bitmap;
}

bool WriteFrame(IWICImagingFactory& factory, IWICBitmapEncoder& encoder, HBITMAP bitmap, int width, int height) {
  ComRef<IWICBitmap> source;
  if (FAILED(factory.CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, source.Receive()))) return false;
  ComRef<IWICBitmapFrameEncode> frame;
  if (FAILED(encoder.CreateNewFrame(frame.Receive(), nullptr))) return false;
  WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
  return SUCCEEDED(frame->Initialize(nullptr)) &&
         SUCCEEDED(frame->SetSize(static_cast<UINT>(width), static_cast<UINT>(height))) &&
         SUCCEEDED(frame->SetPixelFormat(&format)) && SUCCEEDED(frame->WriteSource(source.Get(), nullptr)) &&
         SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder.Commit());
}

bool WritePng(HBITMAP bitmap, int width, int height, const std::wstring& path) {
  ComRef<IWICImagingFactory> factory;
  if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                              reinterpret_cast<void**>(factory.Receive())))) {
    return false;
  }
  ComRef<IWICStream> stream;
  if (FAILED(factory->CreateStream(stream.Receive()))) return false;
  if (FAILED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE))) return false;
  ComRef<IWICBitmapEncoder> encoder;
  if (FAILED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.Receive()))) return false;
  return SUCCEEDED(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache)) &&
         WriteFrame(*factory.Get(), *encoder.Get(), bitmap, width, height);
}

}  // namespace

bool SaveWindowPicture(HWND window, const std::wstring& path) {
  RECT client{};
  GetClientRect(window, &client);
  if (WidthOf(client) == 0 || HeightOf(client) == 0) return false;
  const Bitmap bitmap = PixelsOf(window, WidthOf(client), HeightOf(client));
  const bool entered = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  const bool written = bitmap && WritePng(bitmap.get(), WidthOf(client), HeightOf(client), path);
  if (entered) CoUninitialize();
  return written;
}

}  // namespace Tarnwise
