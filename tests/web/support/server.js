// A static server of one page, without any header that helps or hinders it.
import { createReadStream } from 'node:fs';
import { createServer } from 'node:http';

// The port is any that is free, unless one is given.
export function servePage(file, port = 0) {
  const server = createServer((request, response) => {
    if (request.url !== '/') {
      response.writeHead(404).end();
      return;
    }
    response.writeHead(200, { 'content-type': 'text/html' });
    createReadStream(file).pipe(response);
  });
  return new Promise((resolve) => {
    server.listen(port, '127.0.0.1', () => {
      const stop = () => {
        server.closeAllConnections();
        server.close();
      };
      resolve({ address: `http://127.0.0.1:${server.address().port}/`, stop });
    });
  });
}
