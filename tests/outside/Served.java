import com.sun.net.httpserver.HttpServer;
import java.net.InetAddress;
import java.net.InetSocketAddress;
import java.net.URL;
import java.nio.charset.StandardCharsets;
import java.util.Scanner;

/** A server program that asks itself for a page, prints it and ends; it has nothing to do with windows. */
public final class Served {
    public static void main(String[] arguments) throws Exception {
        HttpServer server = HttpServer.create(new InetSocketAddress(InetAddress.getLoopbackAddress(), 0), 0);
        server.createContext("/", exchange -> {
            byte[] page = "Hello, world\n".getBytes(StandardCharsets.UTF_8);
            exchange.sendResponseHeaders(200, page.length);
            exchange.getResponseBody().write(page);
            exchange.close();
        });
        server.start();
        URL url = new URL("http", server.getAddress().getHostString(), server.getAddress().getPort(), "/");
        try (Scanner answer = new Scanner(url.openStream(), "UTF-8")) {
            System.out.println(answer.nextLine());
        }
        server.stop(0);
    }
}
